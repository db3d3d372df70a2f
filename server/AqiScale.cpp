// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/AqiScale.h"

#include "server/EpaIndex.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
double hundredths(double value)
{
    return std::round(value * 100.0) / 100.0;
}
} // namespace

Pollutants roundedToHundredths(const Pollutants &p)
{
    return { hundredths(p.co),  hundredths(p.no),   hundredths(p.no2),  hundredths(p.o3),
             hundredths(p.so2), hundredths(p.pm25), hundredths(p.pm10), hundredths(p.nh3) };
}

Exposure steadyExposure(const Pollutants &p)
{
    Exposure e;
    e.pm25Day = p.pm25, e.pm10Day = p.pm10;
    e.o3EightHours = e.o3Hour = p.o3;
    e.coEightHours = p.co;
    e.no2Hour = p.no2;
    e.so2Hour = e.so2Day = p.so2;
    return e;
}

int usEpaCategory(const Pollutants &p)
{
    // Every concentration has a value, so there always is an index.
    return usEpaIndex(steadyExposure(p))->category;
}
int openWeatherIndex(const Pollutants &p)
{
    // The bands are half-open ([0, 20), [20, 80), ...): a value on a bound belongs above it.
    const auto band = [](double value, const std::array<double, 4> &lowerBoundsAbove) {
        return static_cast<int>(std::count_if(lowerBoundsAbove.begin(), lowerBoundsAbove.end(), [value](double bound) { return value >= bound; })) + 1;
    };
    return std::max({ band(p.so2, { 20, 80, 250, 350 }), band(p.no2, { 40, 70, 150, 200 }), band(p.pm10, { 20, 50, 100, 200 }),
                      band(p.pm25, { 10, 25, 50, 75 }), band(p.o3, { 60, 100, 140, 180 }), band(p.co, { 4400, 9400, 12400, 15400 }) });
}
