// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/EnvironmentScripts.h"

#include "server/AirSimulation.h"
#include "server/Console.h"

#include <ctime>

// Both scripts require lat (within ±90) and lon (within ±180) as decimal numbers.

namespace
{
struct Position {
    double lat, lon;
};

Position position(const Query &query)
{
    return { query.coordinate("lat", 90), query.coordinate("lon", 180) };
}

// The upstream reading when there is an upstream and it answers; the simulated one otherwise.
template<typename Reading, typename Fetch>
ScriptAnswer answerFrom(const std::optional<OpenWeatherClient> &upstream, const char *what, Reading simulated, Fetch fetch, Json (*toRecord)(const Reading &))
{
    if (!upstream)
        return { Json::array({ toRecord(simulated) }), "simulated" };
    try {
        return { Json::array({ toRecord(fetch(*upstream, simulated)) }), "openweathermap" };
    } catch (const std::exception &error) {
        Console::printLine(std::string("OpenWeatherMap ") + what + " failed (" + error.what() + "): answering with simulated values.");
        return { Json::array({ toRecord(simulated) }), "simulated, upstream failed" };
    }
}

Json airQualityFrom(const Pollutants &pollutants)
{
    const Pollutants sent = roundedToHundredths(pollutants);
    return airQualityRecord(usEpaCategory(sent), sent);
}
} // namespace

EnvironmentScripts::EnvironmentScripts(std::optional<OpenWeatherClient> upstream)
    : m_upstream(std::move(upstream))
{
}

void EnvironmentScripts::addTo(ScriptRouter &router)
{
    // The app decodes these as lists of readings: a refusal is an empty list.
    router.add("airquality.php", ScriptRouter::Refusal::EmptyList, [this](const ScriptRequest &request) { return airQuality(request.query); });
    router.add("weatherapi.php", ScriptRouter::Refusal::EmptyList, [this](const ScriptRequest &request) { return weather(request.query); });
}

ScriptAnswer EnvironmentScripts::airQuality(const Query &query) const
{
    const Position at = position(query);
    const auto fetch = [at](const OpenWeatherClient &client, const Pollutants &) { return client.currentAir(at.lat, at.lon); };
    return answerFrom(m_upstream, "air pollution", simulatedAir(at.lat, at.lon, std::time(nullptr)), fetch, airQualityFrom);
}

ScriptAnswer EnvironmentScripts::weather(const Query &query) const
{
    const Position at = position(query);
    const auto fetch = [at](const OpenWeatherClient &client, const WeatherReading &simulated) { return client.currentWeather(at.lat, at.lon, simulated); };
    return answerFrom(m_upstream, "weather", simulatedWeather(at.lat, at.lon, std::time(nullptr)), fetch, weatherRecord);
}
