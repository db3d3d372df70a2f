// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/OpenWeatherClient.h"

#include <httplib.h>

#include <stdexcept>

OpenWeatherClient::OpenWeatherClient(std::string apiKey)
    : m_apiKey(std::move(apiKey))
{
}

nlohmann::json OpenWeatherClient::get(const std::string &path, double lat, double lon) const
{
    httplib::SSLClient client("api.openweathermap.org");
    client.enable_server_certificate_verification(true);
    client.set_connection_timeout(5);
    client.set_read_timeout(5);
    const httplib::Params params { { "lat", std::to_string(lat) }, { "lon", std::to_string(lon) }, { "appid", m_apiKey } };
    const httplib::Result result = client.Get(httplib::append_query_params(path, params));
    if (!result)
        throw std::runtime_error(httplib::to_string(result.error()));
    if (result->status != 200)
        throw std::runtime_error("HTTP status " + std::to_string(result->status));
    return nlohmann::json::parse(result->body);
}

Pollutants OpenWeatherClient::currentAir(double lat, double lon) const
{
    const nlohmann::json components = get("/data/2.5/air_pollution", lat, lon).at("list").at(0).at("components");
    Pollutants p;
    p.co = components.at("co").get<double>();
    p.no = components.at("no").get<double>();
    p.no2 = components.at("no2").get<double>();
    p.o3 = components.at("o3").get<double>();
    p.so2 = components.at("so2").get<double>();
    p.pm25 = components.at("pm2_5").get<double>();
    p.pm10 = components.at("pm10").get<double>();
    p.nh3 = components.at("nh3").get<double>();
    return p;
}

WeatherReading OpenWeatherClient::currentWeather(double lat, double lon, WeatherReading simulated) const
{
    const nlohmann::json weather = get("/data/2.5/weather", lat, lon);
    simulated.kelvin = weather.at("main").at("temp").get<double>();
    simulated.humidityPercent = weather.at("main").at("humidity").get<double>();
    simulated.windKmh = weather.at("wind").at("speed").get<double>() * 3.6; // the service gives m/s
    return simulated;
}
