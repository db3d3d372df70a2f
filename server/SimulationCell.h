// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <ctime>

// The piece of space and time a simulated value stays fixed for: a cell of
// 0.01° by 0.01° and one UTC hour. Asking twice within it gives one answer.
struct SimulationCell {
    std::int64_t latIndex = 0, lonIndex = 0; // hundredths of a degree
    std::int64_t hour = 0; // hours since the epoch
    double lat = 0, lon = 0; // the cell's centre
    double localSolarHour = 0; // 0 to 24, from the longitude
    double yearFraction = 0; // 0 on January 1st to 1 at the year's end

    // A repeatable pseudo-random number in [low, high): fixed for the cell
    // alone, or for the cell and the hour when hourly. Each use gets its own
    // stream number, so that different quantities do not move together.
    double noise(double low, double high, int stream, bool hourly) const;
};

SimulationCell simulationCell(double lat, double lon, std::time_t when);
