// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/AqiScale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
// Upper bounds of the categories below the top one, in the pollutant's unit.
template<size_t N> int categoryOf(double value, const std::array<double, N> &upperBounds)
{
    const auto band = std::find_if(upperBounds.begin(), upperBounds.end(), [value](double bound) { return value <= bound; });
    return static_cast<int>(band - upperBounds.begin()) + 1;
}

// The EPA reads concentrations truncated to the precision of its tables.
double truncated(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    return std::floor(value * scale + 1e-9) / scale;
}

// µg/m³ to ppb at 25 °C and 1 atm: molar volume 24.45 l over molar mass.
double ppb(double microgramsPerCubicMetre, double molarMass)
{
    return microgramsPerCubicMetre * 24.45 / molarMass;
}

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

int usEpaCategory(const Pollutants &p)
{
    // PM2.5 as revised in 2024. Ozone: the 8-hour table, whose top band
    // continues into the 1-hour table's hazardous level from 0.405 ppm.
    const std::array<double, 5> pm25 { 9.0, 35.4, 55.4, 125.4, 225.4 };
    const std::array<double, 5> pm10 { 54, 154, 254, 354, 424 };
    const std::array<double, 5> o3Ppm { 0.054, 0.070, 0.085, 0.105, 0.404 };
    const std::array<double, 5> no2Ppb { 53, 100, 360, 649, 1249 };
    const std::array<double, 5> so2Ppb { 35, 75, 185, 304, 604 };
    const std::array<double, 5> coPpm { 4.4, 9.4, 12.4, 15.4, 30.4 };
    return std::max({ categoryOf(truncated(p.pm25, 1), pm25), categoryOf(truncated(p.pm10, 0), pm10),
                      categoryOf(truncated(ppb(p.o3, 48.00) / 1000.0, 3), o3Ppm), categoryOf(truncated(ppb(p.no2, 46.01), 0), no2Ppb),
                      categoryOf(truncated(ppb(p.so2, 64.07), 0), so2Ppb), categoryOf(truncated(ppb(p.co, 28.01) / 1000.0, 1), coPpm) });
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
