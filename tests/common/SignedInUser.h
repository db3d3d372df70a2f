// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/SQliteLogin.h"

// Amina, user 12, signed in on this device: the user the screen tests and
// benchmarks sign in as.
inline void storeAmina(const QString &gender = QStringLiteral("2"), const QString &dateofbirth = QStringLiteral("1990-04-02"))
{
    SQliteLogin().insert(QStringLiteral("12"), QStringLiteral("Amina Wanjiru"), QStringLiteral("0712"), QStringLiteral("amina@example.com"), dateofbirth,
                         gender, QStringLiteral("2026-01-05"));
}
