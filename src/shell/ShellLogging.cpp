// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ShellLogging.h"

Q_LOGGING_CATEGORY(lcShell, "tarnelo.shell")
