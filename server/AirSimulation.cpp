// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/AirSimulation.h"

#include "server/SimulationCell.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double pi = 3.14159265358979323846;

struct HotSpot {
    double lat, lon, strength;
};

// Cities whose smog regularly reaches the unhealthy categories.
constexpr HotSpot hotSpots[] = {
    { 28.61, 77.21, 4.0 }, // Delhi
    { 31.55, 74.34, 3.5 }, // Lahore
    { 23.81, 90.41, 3.0 }, // Dhaka
    { 22.57, 88.36, 2.0 }, // Kolkata
    { 39.90, 116.40, 2.0 }, // Beijing
    { 47.89, 106.91, 2.0 }, // Ulaanbaatar
    { 30.04, 31.24, 1.8 }, // Cairo
    { 24.71, 46.68, 1.5 }, // Riyadh
    { 6.52, 3.38, 1.5 }, // Lagos
    { -6.21, 106.85, 1.2 }, // Jakarta
    { 19.43, -99.13, 1.0 }, // Mexico City
};

double square(double x)
{
    return x * x;
}

// About 0.15 far from people, 0.8 in the busy northern mid-latitudes, up to ~7 in a hot spot.
double burden(const SimulationCell &cell)
{
    const double hemisphere = cell.lat > 0 ? 0.65 : 0.4;
    double level = 0.15 + hemisphere * std::exp(-square((std::fabs(cell.lat) - 30) / 18));
    for (const HotSpot &spot : hotSpots) {
        const double distanceSquared = square(cell.lat - spot.lat) + square((cell.lon - spot.lon) * std::cos(spot.lat * pi / 180));
        level += spot.strength * std::exp(-distanceSquared / (2 * square(2.5)));
    }
    return level * cell.noise(0.75, 1.25, 1, false);
}

// Winter heating and inversions: up to +30 % in January in the north, in July in the south.
double heatingSeason(const SimulationCell &cell)
{
    const double strength = 0.3 * std::min(1.0, std::fabs(cell.lat) / 20) * (cell.lat >= 0 ? 1 : -1);
    return 1 + strength * std::cos(2 * pi * cell.yearFraction);
}

double rushHours(double hour)
{
    return 0.6 + 0.7 * std::exp(-square((hour - 8.5) / 2)) + 0.6 * std::exp(-square((hour - 18.5) / 2.5));
}

double nightInversion(double hour)
{
    return 1 + 0.2 * std::cos(2 * pi * (hour - 3) / 24);
}

double afternoonSun(double hour)
{
    return 0.45 + 0.75 * std::max(0.0, std::sin(pi * (hour - 7) / 12));
}
} // namespace

Pollutants simulatedAir(double lat, double lon, std::time_t when)
{
    const SimulationCell cell = simulationCell(lat, lon, when);
    const double level = burden(cell);
    const double season = heatingSeason(cell);
    const double hour = cell.localSolarHour;
    const auto hourly = [&cell](int stream) { return cell.noise(0.85, 1.15, stream, true); };

    Pollutants p;
    p.pm25 = 28 * level * season * nightInversion(hour) * hourly(2);
    p.pm10 = p.pm25 * cell.noise(1.5, 2.1, 3, false) * hourly(4);
    p.no2 = 30 * level * rushHours(hour) * hourly(5);
    p.no = 0.35 * p.no2 * rushHours(hour) * hourly(6);
    p.o3 = (45 + 30 * std::min(level, 2.5)) * afternoonSun(hour) * (2 - season) * hourly(7);
    p.so2 = 9 * std::pow(level, 1.2) * season * hourly(8);
    p.co = 150 + 450 * level * std::sqrt(rushHours(hour)) * season * hourly(9);
    p.nh3 = 4 * std::sqrt(level) * cell.noise(0.5, 2.0, 10, false) * hourly(11);
    return roundedToHundredths(p);
}
