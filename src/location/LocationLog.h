// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

// Diagnostics of the position sources that are not part of their defined console lines.
Q_DECLARE_LOGGING_CATEGORY(lcLocation)
