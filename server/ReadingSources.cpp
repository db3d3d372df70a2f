// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/ReadingSources.h"

#include "server/AirSimulation.h"
#include "server/Console.h"
#include "server/WeatherSimulation.h"

#include <ctime>

namespace
{
constexpr std::int64_t hour = 3600;

HourOfAir simulatedHour(double lat, double lon, std::int64_t time)
{
    const Pollutants p = simulatedAir(lat, lon, static_cast<std::time_t>(time));
    return { time, openWeatherIndex(p), concentrationsOf(p) };
}
} // namespace

ReadingSources::ReadingSources(std::vector<std::unique_ptr<ReadingSource>> upstreams)
    : m_upstreams(std::move(upstreams))
{
}

template<typename Reading, typename Read, typename Simulate> Sourced<Reading> ReadingSources::firstOf(const char *what, Read read, Simulate simulate)
{
    for (size_t i = 0; i < m_upstreams.size(); ++i) {
        ReadingSource &upstream = *m_upstreams[i];
        try {
            if (std::optional<Sourced<Reading>> reading = read(upstream))
                return std::move(*reading);
        } catch (const std::exception &error) {
            const std::string next = i + 1 < m_upstreams.size() ? std::string("trying ") + m_upstreams[i + 1]->name() : "answering with simulated values";
            Console::printLine(std::string(upstream.name()) + " " + what + " failed (" + error.what() + "): " + next + ".");
        }
    }
    return { simulate(), "simulated" };
}

Sourced<AirReading> ReadingSources::air(double lat, double lon)
{
    const std::time_t now = std::time(nullptr);
    return firstOf<AirReading>(
        "air quality", [&](ReadingSource &upstream) { return std::optional(upstream.air(lat, lon, now)); },
        [&] {
            const Pollutants p = simulatedAir(lat, lon, now);
            return AirReading { usEpaCategory(p), concentrationsOf(p) };
        });
}

Sourced<WeatherReading> ReadingSources::weather(double lat, double lon)
{
    const std::time_t now = std::time(nullptr);
    return firstOf<WeatherReading>(
        "weather", [&](ReadingSource &upstream) { return std::optional(upstream.weather(lat, lon, now)); }, [&] { return simulatedWeather(lat, lon, now); });
}

Sourced<std::vector<HourOfAir>> ReadingSources::history(double lat, double lon, std::int64_t start, std::int64_t end)
{
    const std::time_t now = std::time(nullptr);
    return firstOf<std::vector<HourOfAir>>(
        "history", [&](ReadingSource &upstream) { return upstream.history(lat, lon, start, end, now); },
        [&] {
            std::vector<HourOfAir> hours;
            for (std::int64_t time = (start + hour - 1) / hour * hour; time <= end; time += hour)
                hours.push_back(simulatedHour(lat, lon, time));
            return hours;
        });
}

std::string ReadingSources::description() const
{
    std::string text;
    for (const std::unique_ptr<ReadingSource> &upstream : m_upstreams)
        text += std::string(upstream->name()) + ", then ";
    return text + "simulated values";
}
