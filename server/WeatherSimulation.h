// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>
#include <string>

struct WeatherReading {
    double kelvin = 0;
    double humidityPercent = 0;
    double windKmh = 0;
    double uvIndex = 0;
    std::string pollen; // "Low", "Moderate" or "High"
};

// Made-up but plausible weather: temperature from latitude, season and time of
// day; dry subtropics; UV from the sun's height; pollen in the growing season.
// Repeatable within a 0.01° cell and a UTC hour.
WeatherReading simulatedWeather(double lat, double lon, std::time_t when);
