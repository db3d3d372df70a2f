// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/UtcTime.h"

std::tm utcFields(std::time_t when)
{
    std::tm fields {};
    gmtime_r(&when, &fields);
    return fields;
}

std::string utcTimestamp(std::time_t when)
{
    const std::tm fields = utcFields(when);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &fields);
    return text;
}

std::string utcTimestampNow()
{
    return utcTimestamp(std::time(nullptr));
}
