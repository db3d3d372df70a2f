// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/EnvironmentScripts.h"

#include "server/ReadingSources.h"
#include "server/Records.h"

// Both scripts require lat (within ±90) and lon (within ±180) as decimal numbers.

EnvironmentScripts::EnvironmentScripts(ReadingSources &sources)
    : m_sources(sources)
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
    const double lat = query.coordinate("lat", 90), lon = query.coordinate("lon", 180);
    const Sourced<AirReading> air = m_sources.air(lat, lon);
    return { Json::array({ airQualityRecord(air.reading) }), air.source };
}

ScriptAnswer EnvironmentScripts::weather(const Query &query) const
{
    const double lat = query.coordinate("lat", 90), lon = query.coordinate("lon", 180);
    const Sourced<WeatherReading> weather = m_sources.weather(lat, lon);
    return { Json::array({ weatherRecord(weather.reading) }), weather.source };
}
