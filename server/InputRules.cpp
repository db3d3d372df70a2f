// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/InputRules.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <cmath>
#include <ctime>
#include <regex>

bool isValidUtf8(const std::string &text)
{
    // The JSON serialiser validates strictly (overlong forms, surrogates, truncation).
    try {
        static_cast<void>(nlohmann::json(text).dump());
        return true;
    } catch (const nlohmann::json::type_error &) {
        return false;
    }
}

size_t characterCount(const std::string &utf8)
{
    size_t count = 0;
    for (const char byte : utf8)
        count += (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    return count;
}

bool looksLikeEmail(const std::string &text)
{
    static const std::regex shape(R"([^@\s]+@[^@\s.]+(\.[^@\s.]+)*\.[^@\s.]{2,})");
    return std::regex_match(text, shape);
}

bool isCalendarDate(const std::string &text)
{
    static const std::regex shape(R"(\d{4}-\d{2}-\d{2})");
    if (!std::regex_match(text, shape))
        return false;
    std::tm fields {};
    fields.tm_year = std::stoi(text.substr(0, 4)) - 1900;
    fields.tm_mon = std::stoi(text.substr(5, 2)) - 1;
    fields.tm_mday = std::stoi(text.substr(8, 2));
    // timegm() normalises 2023-02-30 to March 2nd: a real day survives unchanged.
    const int month = fields.tm_mon, day = fields.tm_mday;
    timegm(&fields);
    return fields.tm_mon == month && fields.tm_mday == day;
}

std::optional<std::int64_t> parseDecimalInteger(const std::string &text)
{
    std::int64_t value = 0;
    const char *end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (text.empty() || text.front() == '-' || result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

std::optional<double> parseCoordinate(const std::string &text, double limit)
{
    double value = 0;
    const char *end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value) || std::fabs(value) > limit)
        return std::nullopt;
    return value;
}
