// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/ReadingSource.h"

#include <chrono>
#include <string>

class UpstreamCache;

// OpenWeatherMap's current air pollution and weather, for whoever has its key.
// Its current answer has no past, so the category takes the current
// concentrations for the means; it knows no UV index or pollen. Answers are
// kept per cell and hour like every upstream's.
class OpenWeatherSource : public ReadingSource
{
public:
    OpenWeatherSource(std::string apiKey, std::chrono::milliseconds deadline, UpstreamCache &cache);

    const char *name() const override { return "OpenWeatherMap"; }
    Sourced<AirReading> air(double lat, double lon, std::time_t now) override;
    Sourced<WeatherReading> weather(double lat, double lon, std::time_t now) override;

private:
    std::string answer(const char *path, double lat, double lon, std::time_t now, bool &cached);

    std::string m_apiKey;
    std::chrono::milliseconds m_deadline;
    UpstreamCache &m_cache;
};
