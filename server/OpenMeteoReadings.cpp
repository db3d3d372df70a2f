// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/OpenMeteoReadings.h"

#include "server/EpaIndex.h"
#include "server/PollenLevel.h"
#include "server/UpstreamGet.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr std::int64_t hour = 3600;

Concentrations concentrationsIn(const Values &values)
{
    Concentrations c;
    c.co = values.at("carbon_monoxide"), c.no2 = values.at("nitrogen_dioxide"), c.o3 = values.at("ozone");
    c.so2 = values.at("sulphur_dioxide"), c.pm25 = values.at("pm2_5"), c.pm10 = values.at("pm10"), c.nh3 = values.at("ammonia");
    return c; // nitrogen monoxide is not among the upstream's variables
}

Values valuesAt(const AirAnswer &air, size_t index)
{
    Values values;
    for (const auto &[variable, series] : air.hourly)
        values[variable] = series[index];
    return values;
}

// The mean of the hours that end with the one at `last`, if enough of them have a value.
std::optional<double> meanOf(const std::vector<std::optional<double>> &series, size_t last, size_t hours)
{
    if (last + 1 < hours)
        return std::nullopt;
    double sum = 0;
    size_t counted = 0;
    for (size_t i = last + 1 - hours; i <= last; ++i)
        if (series[i])
            sum += *series[i], ++counted;
    if (counted * 4 < hours * 3)
        return std::nullopt;
    return sum / static_cast<double>(counted);
}

size_t currentHourIndex(const AirAnswer &air)
{
    const std::int64_t currentHour = air.currentTime / hour * hour;
    const auto found = std::find(air.hours.begin(), air.hours.end(), currentHour);
    if (found == air.hours.end())
        throw UpstreamError("the hourly values do not reach the current hour");
    return static_cast<size_t>(found - air.hours.begin());
}
} // namespace

AirReading currentAir(const AirAnswer &air)
{
    const size_t now = currentHourIndex(air);
    const auto mean = [&air, now](const char *variable, size_t hours) { return meanOf(air.hourly.at(variable), now, hours); };
    Exposure e;
    e.pm25Day = mean("pm2_5", 24), e.pm10Day = mean("pm10", 24);
    e.o3EightHours = mean("ozone", 8), e.coEightHours = mean("carbon_monoxide", 8);
    e.o3Hour = air.current.at("ozone"), e.no2Hour = air.current.at("nitrogen_dioxide"), e.so2Hour = air.current.at("sulphur_dioxide");
    e.so2Day = mean("sulphur_dioxide", 24);
    const std::optional<AirIndex> index = usEpaIndex(e);
    if (!index)
        throw UpstreamError("no pollutant has enough values for an index");
    return { index->category, concentrationsIn(air.current) };
}

WeatherReading currentWeather(const WeatherAnswer &weather, const AirAnswer *air)
{
    WeatherReading reading;
    reading.kelvin = std::round((weather.celsius + 273.15) * 100) / 100;
    reading.humidityPercent = weather.humidityPercent;
    reading.windKmh = weather.windKmh;
    if (air) {
        const Values &now = air->current;
        reading.uvIndex = now.at("uv_index");
        reading.pollen = pollenLevel({ now.at("alder_pollen"), now.at("birch_pollen"), now.at("olive_pollen"), now.at("grass_pollen"), now.at("mugwort_pollen"),
                                       now.at("ragweed_pollen") });
    }
    return reading;
}

std::vector<HourOfAir> hoursOfAir(const AirAnswer &air, std::int64_t start, std::int64_t end)
{
    if (air.hours.empty() || start < air.hours.front() - hour + 1)
        throw UpstreamError("the range begins before the upstream's past");
    std::vector<HourOfAir> hours;
    for (size_t i = 0; i < air.hours.size(); ++i) {
        if (air.hours[i] < start || air.hours[i] > end)
            continue;
        const Concentrations c = concentrationsIn(valuesAt(air, i));
        if (!(c.co && c.no2 && c.o3 && c.so2 && c.pm25 && c.pm10))
            continue;
        Pollutants p;
        p.co = *c.co, p.no2 = *c.no2, p.o3 = *c.o3, p.so2 = *c.so2, p.pm25 = *c.pm25, p.pm10 = *c.pm10;
        hours.push_back({ air.hours[i], openWeatherIndex(p), c });
    }
    return hours;
}
