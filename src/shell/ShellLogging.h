// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

// Diagnostics of the shell that are not part of the app's console output.
Q_DECLARE_LOGGING_CATEGORY(lcShell)
