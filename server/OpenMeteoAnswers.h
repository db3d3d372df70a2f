// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// The parts of Open-Meteo's answers (JSON, times as Unix seconds) the backend
// reads. An answer that lacks a variable asked for, or carries one of another
// type, is refused with an UpstreamError; a null value is a value the model
// does not have there (pollen and ammonia outside Europe) and stays absent.

// Asked of the air-quality API, hourly and current: µg/m³, but for the UV
// index and the pollen counts (grains/m³).
extern const std::vector<std::string> airVariables;
// Asked of the forecast API, current only: °C, %, km/h.
extern const std::vector<std::string> weatherVariables;

using Values = std::map<std::string, std::optional<double>>;

struct AirAnswer {
    std::int64_t currentTime = 0;
    Values current;
    std::vector<std::int64_t> hours; // ascending
    std::map<std::string, std::vector<std::optional<double>>> hourly; // one value per hour
};
AirAnswer readAirAnswer(const std::string &body);

struct WeatherAnswer {
    double celsius = 0, humidityPercent = 0, windKmh = 0;
};
WeatherAnswer readWeatherAnswer(const std::string &body);
