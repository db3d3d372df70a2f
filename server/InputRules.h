// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

bool isValidUtf8(const std::string &text);
// Code points of valid UTF-8 text.
size_t characterCount(const std::string &utf8);

// something@something.tld, without spaces: enough to catch a slip of the thumb.
bool looksLikeEmail(const std::string &text);
// yyyy-MM-dd naming a real day.
bool isCalendarDate(const std::string &text);

// Plain decimal digits only, no sign or spaces.
std::optional<std::int64_t> parseDecimalInteger(const std::string &text);
// A finite decimal number within ±limit.
std::optional<double> parseCoordinate(const std::string &text, double limit);
