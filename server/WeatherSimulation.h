// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/Readings.h"

#include <ctime>

// Made-up but plausible weather: temperature from latitude, season and time of
// day; dry subtropics; UV from the sun's height; pollen in the growing season.
// Repeatable within a 0.01° cell and a UTC hour.
WeatherReading simulatedWeather(double lat, double lon, std::time_t when);
