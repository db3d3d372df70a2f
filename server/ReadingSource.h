// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/Readings.h"

#include <ctime>
#include <optional>
#include <vector>

// An upstream that reads the air and weather at a position at the time `now`.
// Every failure is an UpstreamError that says what went wrong.
class ReadingSource
{
public:
    virtual ~ReadingSource() = default;

    // As the console names it: "Open-Meteo".
    virtual const char *name() const = 0;

    virtual Sourced<AirReading> air(double lat, double lon, std::time_t now) = 0;
    virtual Sourced<WeatherReading> weather(double lat, double lon, std::time_t now) = 0;
    // The hours from start to end; nothing from a source that keeps no past.
    virtual std::optional<Sourced<std::vector<HourOfAir>>> history(double lat, double lon, std::int64_t start, std::int64_t end, std::time_t now)
    {
        (void)lat, (void)lon, (void)start, (void)end, (void)now;
        return std::nullopt;
    }
};
