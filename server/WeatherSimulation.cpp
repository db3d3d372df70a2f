// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/WeatherSimulation.h"

#include "server/SimulationCell.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double pi = 3.14159265358979323846;

double square(double x)
{
    return x * x;
}

// 0 in midwinter, 1 in midsummer, for the cell's hemisphere.
double summer(const SimulationCell &cell)
{
    const double northern = 0.5 - 0.5 * std::cos(2 * pi * (cell.yearFraction - 0.03));
    return cell.lat >= 0 ? northern : 1 - northern;
}

double celsius(const SimulationCell &cell)
{
    const double yearlyMean = 28 - 0.0065 * square(cell.lat);
    const double seasonalSwing = 0.15 * std::fabs(cell.lat) * (summer(cell) - 0.5) * 2;
    const double dailySwing = 4 * std::cos(2 * pi * (cell.localSolarHour - 15) / 24);
    return yearlyMean + seasonalSwing + dailySwing + cell.noise(-2, 2, 21, true);
}

double uvIndex(const SimulationCell &cell)
{
    const double declination = 23.44 * std::sin(2 * pi * (cell.yearFraction - 80.0 / 365));
    const double noonHeight = std::max(0.0, std::cos((cell.lat - declination) * pi / 180));
    const double daylight = std::max(0.0, std::sin(pi * (cell.localSolarHour - 6) / 12));
    return 12.5 * std::pow(noonHeight, 3) * std::pow(daylight, 1.5) * cell.noise(0.7, 1.0, 22, true);
}

const char *pollenLevel(const SimulationCell &cell)
{
    const double plantsGrowing = std::fabs(cell.lat) < 60 ? 1.0 : 0.3;
    const double score = summer(cell) * plantsGrowing * cell.noise(0.3, 1.3, 23, true);
    return score < 0.35 ? "Low" : score < 0.75 ? "Moderate" : "High";
}
} // namespace

WeatherReading simulatedWeather(double lat, double lon, std::time_t when)
{
    const SimulationCell cell = simulationCell(lat, lon, when);
    WeatherReading reading;
    reading.kelvin = std::round((celsius(cell) + 273.15) * 100) / 100;
    const double dryness = 35 * std::exp(-square((std::fabs(cell.lat) - 25) / 8));
    const double humidity = 75 - dryness + 10 * std::cos(2 * pi * (cell.localSolarHour - 5) / 24) + cell.noise(-8, 8, 24, true);
    reading.humidityPercent = std::round(std::clamp(humidity, 5.0, 100.0));
    reading.windKmh = std::round((8 + 14 * std::fabs(cell.lat) / 90 + cell.noise(0, 12, 25, true)) * 10) / 10;
    reading.uvIndex = std::round(uvIndex(cell) * 10) / 10;
    reading.pollen = pollenLevel(cell);
    return reading;
}
