// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/OpenWeatherSource.h"

#include "server/Records.h"
#include "server/UpstreamCache.h"
#include "server/UpstreamGet.h"

#include <nlohmann/json.hpp>

namespace
{
std::string label(bool cached)
{
    return cached ? "openweathermap, cached" : "openweathermap";
}
} // namespace

OpenWeatherSource::OpenWeatherSource(std::string apiKey, std::chrono::milliseconds deadline, UpstreamCache &cache)
    : m_apiKey(std::move(apiKey))
    , m_deadline(deadline)
    , m_cache(cache)
{
}

std::string OpenWeatherSource::answer(const char *path, double lat, double lon, std::time_t now, bool &cached)
{
    const UpstreamKey key(std::string("openweathermap ") + path, lat, lon, now);
    const std::string target = std::string(path) + "?lat=" + decimalText(key.lat(), 2) + "&lon=" + decimalText(key.lon(), 2) + "&appid=" + m_apiKey;
    const UpstreamCache::Answer answer = m_cache.get(key, [&] {
        std::string body = upstreamGet("https://api.openweathermap.org", target, m_deadline);
        if (!nlohmann::json::accept(body))
            throw UpstreamError("the answer is not JSON");
        return body;
    });
    cached = answer.cached;
    return answer.body;
}

Sourced<AirReading> OpenWeatherSource::air(double lat, double lon, std::time_t now)
{
    bool cached = false;
    const nlohmann::json components = nlohmann::json::parse(answer("/data/2.5/air_pollution", lat, lon, now, cached)).at("list").at(0).at("components");
    Pollutants p;
    p.co = components.at("co").get<double>(), p.no = components.at("no").get<double>(), p.no2 = components.at("no2").get<double>();
    p.o3 = components.at("o3").get<double>(), p.so2 = components.at("so2").get<double>(), p.pm25 = components.at("pm2_5").get<double>();
    p.pm10 = components.at("pm10").get<double>(), p.nh3 = components.at("nh3").get<double>();
    return { { usEpaCategory(p), concentrationsOf(p) }, label(cached) };
}

Sourced<WeatherReading> OpenWeatherSource::weather(double lat, double lon, std::time_t now)
{
    bool cached = false;
    const nlohmann::json weather = nlohmann::json::parse(answer("/data/2.5/weather", lat, lon, now, cached));
    WeatherReading reading;
    reading.kelvin = weather.at("main").at("temp").get<double>();
    reading.humidityPercent = weather.at("main").at("humidity").get<double>();
    reading.windKmh = weather.at("wind").at("speed").get<double>() * 3.6; // the service gives m/s
    return { reading, label(cached) };
}
