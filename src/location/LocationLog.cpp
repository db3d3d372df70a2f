// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/LocationLog.h"

Q_LOGGING_CATEGORY(lcLocation, "tarnelo.location")
