// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

// Diagnostics of the local store that are not part of its defined console lines.
Q_DECLARE_LOGGING_CATEGORY(lcStorage)
