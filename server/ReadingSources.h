// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/ReadingSource.h"

#include <memory>
#include <vector>

// The upstreams in the configured order, then the simulation: each reading
// comes from the first that gives one. A failure is told on the console in one
// line; the reading is then marked "simulated" if no upstream gave it.
class ReadingSources
{
public:
    explicit ReadingSources(std::vector<std::unique_ptr<ReadingSource>> upstreams);

    Sourced<AirReading> air(double lat, double lon);
    Sourced<WeatherReading> weather(double lat, double lon);
    Sourced<std::vector<HourOfAir>> history(double lat, double lon, std::int64_t start, std::int64_t end);

    // "Open-Meteo, then simulated values", for the console at start.
    std::string description() const;

private:
    template<typename Reading, typename Read, typename Simulate> Sourced<Reading> firstOf(const char *what, Read read, Simulate simulate);

    std::vector<std::unique_ptr<ReadingSource>> m_upstreams;
};
