// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/AqiScale.h"
#include "server/WeatherSimulation.h"

#include <nlohmann/json.hpp>

#include <string>

// Current readings from OpenWeatherMap over HTTPS. Every failure (network,
// status, unexpected JSON) throws an exception that says what went wrong.
class OpenWeatherClient
{
public:
    explicit OpenWeatherClient(std::string apiKey);

    Pollutants currentAir(double lat, double lon) const;
    // Temperature, humidity and wind. The service's current weather has no UV
    // index or pollen level: those stay as given in `simulated`.
    WeatherReading currentWeather(double lat, double lon, WeatherReading simulated) const;

private:
    nlohmann::json get(const std::string &path, double lat, double lon) const;

    std::string m_apiKey;
};
