// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/AqiScale.h"

#include <cstdint>
#include <optional>
#include <string>

// Readings as the answers carry them. A value that the source did not give is
// absent, and the answer says so in words rather than with a made-up number.

// µg/m³.
struct Concentrations {
    std::optional<double> co, no, no2, o3, so2, pm25, pm10, nh3;
};
Concentrations concentrationsOf(const Pollutants &p);

struct AirReading {
    int usEpaCategory = 1;
    Concentrations concentrations;
};

struct WeatherReading {
    double kelvin = 0;
    double humidityPercent = 0;
    double windKmh = 0;
    std::optional<double> uvIndex;
    std::optional<std::string> pollen; // "None", "Low", "Moderate", "High" or "Very high"
};

// One hour of the history: OpenWeatherMap's index 1 Good ... 5 Very poor.
struct HourOfAir {
    std::int64_t time = 0;
    int openWeatherIndex = 1;
    Concentrations concentrations;
};

// A reading and where it came from, as the console shows it: "open-meteo",
// "open-meteo, cached", "simulated".
template<typename Reading> struct Sourced {
    Reading reading;
    std::string source;
};
