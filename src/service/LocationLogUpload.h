// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/BackendQuery.h"

class QObject;

// Reports a visited position with the readings shown there ("locationlogs.php").
// Prints "URL PRINT LOGS  " and the URL before sending; the answer is not read.
void sendLocationLog(std::initializer_list<QueryValue> values, const QObject *context);
