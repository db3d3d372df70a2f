// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>
#include <string>

// "yyyy-MM-dd HH:mm:ss" in UTC, the form every date in the backend's answers takes.
std::string utcTimestamp(std::time_t when);
std::string utcTimestampNow();

// The broken-down UTC time of an instant.
std::tm utcFields(std::time_t when);
