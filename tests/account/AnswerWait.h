// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/AccountScreenModel.h"

#include <QTest>

// Lets the event loop run until the screen's request has been answered.
inline bool waitUntilAnswered(const AccountScreenModel &model)
{
    return QTest::qWaitFor([&model] { return !model.isLoading(); }, 5000);
}
