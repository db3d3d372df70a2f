// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/AqiScale.h"

#include <ctime>

// Made-up but plausible concentrations, rounded to hundredths: a base level
// for the place (populated latitudes and known smog hot spots score higher), a
// heating season, rush hours for traffic gases, afternoon ozone, and a little
// hourly noise. Repeatable within a 0.01° cell and a UTC hour.
Pollutants simulatedAir(double lat, double lon, std::time_t when);
