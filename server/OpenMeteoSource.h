// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/OpenMeteoAnswers.h"
#include "server/ReadingSource.h"

#include <chrono>
#include <string>

class UpstreamCache;
struct UpstreamKey;

// Open-Meteo's free air-quality and forecast APIs, which need no key; their
// data are under CC BY 4.0. They are told only the centre of the 0.01° cell
// around a position, and asked at most once per cell and hour: the air-quality
// answer (the past seven days and today, hourly) serves the current reading,
// the UV index and pollen of the weather, and the history.
class OpenMeteoSource : public ReadingSource
{
public:
    struct Urls {
        std::string air = "https://air-quality-api.open-meteo.com";
        std::string weather = "https://api.open-meteo.com";
    };
    OpenMeteoSource(Urls urls, std::chrono::milliseconds deadline, UpstreamCache &cache);

    const char *name() const override { return "Open-Meteo"; }
    Sourced<AirReading> air(double lat, double lon, std::time_t now) override;
    Sourced<WeatherReading> weather(double lat, double lon, std::time_t now) override;
    std::optional<Sourced<std::vector<HourOfAir>>> history(double lat, double lon, std::int64_t start, std::int64_t end, std::time_t now) override;

private:
    Sourced<AirAnswer> airAnswer(double lat, double lon, std::time_t now);

    Urls m_urls;
    std::chrono::milliseconds m_deadline;
    UpstreamCache &m_cache;
};
