// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

// What the US EPA reads of each pollutant, in µg/m³ as the upstreams report
// them: the 24-hour means of the particles, the 8-hour means of ozone and
// carbon monoxide, the 1-hour values of NO2, SO2 and ozone, and the 24-hour
// mean of SO2 for its upper bands. A pollutant without a value does not count.
struct Exposure {
    std::optional<double> pm25Day, pm10Day;
    std::optional<double> o3EightHours, coEightHours;
    std::optional<double> o3Hour, no2Hour, so2Hour;
    std::optional<double> so2Day;
};

// An index value (0 to 500, beyond 500 for air off the scale) and its
// category, 1 Good ... 6 Hazardous.
struct AirIndex {
    int value = 0;
    int category = 1;
};

// The EPA's Air Quality Index as revised in May 2024: each pollutant's
// concentration truncated to its table's precision, gases converted to
// ppb/ppm at 25 °C, placed by linear interpolation within its breakpoints, and
// the worst pollutant decides. Nothing when no pollutant has a value.
std::optional<AirIndex> usEpaIndex(const Exposure &exposure);
