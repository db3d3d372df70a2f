// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/OpenMeteoSource.h"

#include "server/OpenMeteoReadings.h"
#include "server/Records.h"
#include "server/UpstreamCache.h"
#include "server/UpstreamGet.h"

namespace
{
std::string joined(const std::vector<std::string> &variables)
{
    std::string list;
    for (const std::string &variable : variables)
        list += (list.empty() ? "" : ",") + variable;
    return list;
}

std::string position(const UpstreamKey &key)
{
    return "latitude=" + decimalText(key.lat(), 2) + "&longitude=" + decimalText(key.lon(), 2);
}

std::string label(bool cached)
{
    return cached ? "open-meteo, cached" : "open-meteo";
}
} // namespace

OpenMeteoSource::OpenMeteoSource(Urls urls, std::chrono::milliseconds deadline, UpstreamCache &cache)
    : m_urls(std::move(urls))
    , m_deadline(deadline)
    , m_cache(cache)
{
}

Sourced<AirAnswer> OpenMeteoSource::airAnswer(double lat, double lon, std::time_t now)
{
    const UpstreamKey key("open-meteo air", lat, lon, now);
    const std::string variables = joined(airVariables);
    const std::string target
        = "/v1/air-quality?" + position(key) + "&hourly=" + variables + "&current=" + variables + "&past_days=7&forecast_days=1&timeformat=unixtime";
    // Only an answer that reads is kept.
    const UpstreamCache::Answer answer = m_cache.get(key, [&] {
        std::string body = upstreamGet(m_urls.air, target, m_deadline);
        readAirAnswer(body);
        return body;
    });
    return { readAirAnswer(answer.body), label(answer.cached) };
}

Sourced<AirReading> OpenMeteoSource::air(double lat, double lon, std::time_t now)
{
    const Sourced<AirAnswer> answer = airAnswer(lat, lon, now);
    return { currentAir(answer.reading), answer.source };
}

Sourced<WeatherReading> OpenMeteoSource::weather(double lat, double lon, std::time_t now)
{
    const UpstreamKey key("open-meteo weather", lat, lon, now);
    const std::string target = "/v1/forecast?" + position(key) + "&current=" + joined(weatherVariables) + "&timeformat=unixtime";
    const UpstreamCache::Answer answer = m_cache.get(key, [&] {
        std::string body = upstreamGet(m_urls.weather, target, m_deadline);
        readWeatherAnswer(body);
        return body;
    });
    const WeatherAnswer weather = readWeatherAnswer(answer.body);
    // Without the air-quality answer the weather still holds; its UV index and pollen are then unknown.
    try {
        const Sourced<AirAnswer> air = airAnswer(lat, lon, now);
        return { currentWeather(weather, &air.reading), label(answer.cached && air.source == label(true)) };
    } catch (const UpstreamError &) {
        return { currentWeather(weather, nullptr), label(answer.cached) };
    }
}

std::optional<Sourced<std::vector<HourOfAir>>> OpenMeteoSource::history(double lat, double lon, std::int64_t start, std::int64_t end, std::time_t now)
{
    const Sourced<AirAnswer> answer = airAnswer(lat, lon, now);
    return Sourced<std::vector<HourOfAir>> { hoursOfAir(answer.reading, start, end), answer.source };
}
