// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/OpenMeteoAnswers.h"
#include "server/Readings.h"

// Readings from Open-Meteo's answers.

// The current concentrations, and the EPA category of the means that end with
// the current hour: 24 hours of particles, 8 of ozone and carbon monoxide, the
// current hour of the other gases. A mean needs three quarters of its hours.
// An UpstreamError when no pollutant gives an index.
AirReading currentAir(const AirAnswer &air);

// Temperature, humidity and wind from the forecast; UV index and pollen level
// from the air-quality answer when there is one.
WeatherReading currentWeather(const WeatherAnswer &weather, const AirAnswer *air);

// The answer's hours t with start <= t <= end that have the six pollutants of
// OpenWeatherMap's index. An UpstreamError when start lies before the answer's
// first hour, whose past the answer does not hold.
std::vector<HourOfAir> hoursOfAir(const AirAnswer &air, std::int64_t start, std::int64_t end);
