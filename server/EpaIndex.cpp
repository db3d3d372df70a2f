// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/EpaIndex.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

// Breakpoints from the EPA's Technical Assistance Document for the Reporting
// of Daily Air Quality (EPA-454/B-24-002, May 2024), table 6.

namespace
{
struct Band {
    double low, high;
    int indexLow, indexHigh;
};

using Table = std::vector<Band>;

const Table pm25Day { { 0.0, 9.0, 0, 50 },       { 9.1, 35.4, 51, 100 },     { 35.5, 55.4, 101, 150 },
                      { 55.5, 125.4, 151, 200 }, { 125.5, 225.4, 201, 300 }, { 225.5, 325.4, 301, 500 } };
const Table pm10Day { { 0, 54, 0, 50 }, { 55, 154, 51, 100 }, { 155, 254, 101, 150 }, { 255, 354, 151, 200 }, { 355, 424, 201, 300 }, { 425, 604, 301, 500 } };
// 8-hour ozone ends at 0.200 ppm; above it, and for 301 and more, the 1-hour table speaks.
const Table o3EightHoursPpm {
    { 0.000, 0.054, 0, 50 }, { 0.055, 0.070, 51, 100 }, { 0.071, 0.085, 101, 150 }, { 0.086, 0.105, 151, 200 }, { 0.106, 0.200, 201, 300 }
};
const Table o3HourPpm { { 0.125, 0.164, 101, 150 }, { 0.165, 0.204, 151, 200 }, { 0.205, 0.404, 201, 300 }, { 0.405, 0.604, 301, 500 } };
const Table coEightHoursPpm { { 0.0, 4.4, 0, 50 },      { 4.5, 9.4, 51, 100 },    { 9.5, 12.4, 101, 150 },
                              { 12.5, 15.4, 151, 200 }, { 15.5, 30.4, 201, 300 }, { 30.5, 50.4, 301, 500 } };
const Table no2HourPpb { { 0, 53, 0, 50 },       { 54, 100, 51, 100 },    { 101, 360, 101, 150 },
                         { 361, 649, 151, 200 }, { 650, 1249, 201, 300 }, { 1250, 2049, 301, 500 } };
// 1-hour SO2 ends at 304 ppb; from 305 the 24-hour mean decides.
const Table so2HourPpb { { 0, 35, 0, 50 }, { 36, 75, 51, 100 }, { 76, 185, 101, 150 }, { 186, 304, 151, 200 } };
const Table so2DayPpb { { 305, 604, 201, 300 }, { 605, 1004, 301, 500 } };

constexpr double epsilon = 1e-9;

double truncated(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    return std::floor(value * scale + epsilon) / scale;
}

// ppb per µg/m³ at 25 °C and 1 atm: the molar volume, 24.45 l, over the molar mass.
constexpr double ppbPerMicrogram(double molarMass)
{
    return 24.45 / molarMass;
}
constexpr double ozonePpm = ppbPerMicrogram(48.00) / 1000;
constexpr double carbonMonoxidePpm = ppbPerMicrogram(28.01) / 1000;
constexpr double nitrogenDioxidePpb = ppbPerMicrogram(46.01);
constexpr double sulphurDioxidePpb = ppbPerMicrogram(64.07);

// The index of a truncated concentration; beyond the top band the top band's
// line continues, as the EPA allows. Nothing below the table's first band.
std::optional<double> indexIn(const Table &table, double concentration)
{
    if (concentration < table.front().low - epsilon)
        return std::nullopt;
    const auto band = std::find_if(table.begin(), table.end(), [concentration](const Band &b) { return concentration <= b.high + epsilon; });
    const Band &b = band == table.end() ? table.back() : *band;
    return (b.indexHigh - b.indexLow) / (b.high - b.low) * (concentration - b.low) + b.indexLow;
}

std::optional<double> indexOf(const std::optional<double> &value, const Table &table, int decimals, double scale = 1)
{
    if (!value)
        return std::nullopt;
    return indexIn(table, truncated(std::max(0.0, *value) * scale, decimals));
}

std::optional<double> ozoneIndex(const Exposure &e)
{
    std::optional<double> eightHours;
    if (e.o3EightHours && truncated(*e.o3EightHours * ozonePpm, 3) <= o3EightHoursPpm.back().high + epsilon)
        eightHours = indexOf(e.o3EightHours, o3EightHoursPpm, 3, ozonePpm);
    const std::optional<double> hour = indexOf(e.o3Hour, o3HourPpm, 3, ozonePpm);
    if (eightHours && hour)
        return std::max(*eightHours, *hour);
    return eightHours ? eightHours : hour;
}

std::optional<double> sulphurDioxideIndex(const Exposure &e)
{
    if (!e.so2Hour)
        return std::nullopt;
    const double hourPpb = truncated(std::max(0.0, *e.so2Hour) * sulphurDioxidePpb, 0);
    if (hourPpb <= so2HourPpb.back().high)
        return indexIn(so2HourPpb, hourPpb);
    // The hour alone says at least the top of its own table.
    const double dayPpb = truncated(std::max(0.0, e.so2Day.value_or(*e.so2Hour)) * sulphurDioxidePpb, 0);
    return std::max<double>(so2HourPpb.back().indexHigh, indexIn(so2DayPpb, dayPpb).value_or(0));
}

int categoryOf(int index)
{
    constexpr std::array<int, 5> upperBounds { 50, 100, 150, 200, 300 };
    return static_cast<int>(std::count_if(upperBounds.begin(), upperBounds.end(), [index](int bound) { return index > bound; })) + 1;
}
} // namespace

std::optional<AirIndex> usEpaIndex(const Exposure &e)
{
    const std::optional<double> indices[] = {
        indexOf(e.pm25Day, pm25Day, 1),
        indexOf(e.pm10Day, pm10Day, 0),
        ozoneIndex(e),
        indexOf(e.coEightHours, coEightHoursPpm, 1, carbonMonoxidePpm),
        indexOf(e.no2Hour, no2HourPpb, 0, nitrogenDioxidePpb),
        sulphurDioxideIndex(e),
    };
    std::optional<double> worst;
    for (const std::optional<double> &index : indices)
        if (index && (!worst || *index > *worst))
            worst = index;
    if (!worst)
        return std::nullopt;
    const int value = static_cast<int>(std::lround(*worst));
    return AirIndex { value, categoryOf(value) };
}
