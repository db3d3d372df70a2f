// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ServiceLog.h"

Q_LOGGING_CATEGORY(lcService, "tarnelo.service")
