// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/StorageLog.h"

Q_LOGGING_CATEGORY(lcStorage, "tarnelo.storage")
