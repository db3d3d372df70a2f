// SPDX-License-Identifier: GPL-3.0-or-later
#include "OpenMeteoStandIn.h"

#include <nlohmann/json.hpp>

#include <ctime>
#include <fstream>

namespace
{
nlohmann::json recording(const std::string &name)
{
    std::ifstream file(std::string(OPEN_METEO_RECORDINGS) + "/" + name);
    return nlohmann::json::parse(file);
}

// The recording as if made now: every time moved by whole hours.
void movedToNow(nlohmann::json &answer)
{
    const std::int64_t hour = 3600;
    nlohmann::json &currentTime = answer["current"]["time"];
    const std::int64_t shift = std::time(nullptr) / hour * hour - currentTime.get<std::int64_t>() / hour * hour;
    currentTime = currentTime.get<std::int64_t>() + shift;
    if (answer.contains("hourly"))
        for (nlohmann::json &time : answer["hourly"]["time"])
            time = time.get<std::int64_t>() + shift;
}
} // namespace

OpenMeteoStandIn::OpenMeteoStandIn()
{
    m_server.Get("/v1/air-quality", [this](const httplib::Request &request, httplib::Response &response) { answer(request, response, "air"); });
    m_server.Get("/v1/forecast", [this](const httplib::Request &request, httplib::Response &response) { answer(request, response, "forecast"); });
    m_port = m_server.bind_to_any_port("127.0.0.1");
    m_thread = std::thread([this] { m_server.listen_after_bind(); });
}

OpenMeteoStandIn::~OpenMeteoStandIn()
{
    setBehaviour(Behaviour::Recorded);
    m_server.stop();
    m_thread.join();
}

QStringList OpenMeteoStandIn::backendOptions() const
{
    const QString url = QStringLiteral("http://127.0.0.1:%1").arg(m_port);
    return {
        QStringLiteral("--sources"), QStringLiteral("open-meteo"), QStringLiteral("--open-meteo-air-url"), url, QStringLiteral("--open-meteo-weather-url"), url
    };
}

void OpenMeteoStandIn::answer(const httplib::Request &request, httplib::Response &response, const char *kind)
{
    ++m_calls;
    for (int waited = 0; m_behaviour == Behaviour::Stall && waited < 2000; ++waited)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    const bool missingField = m_behaviour == Behaviour::MissingField;

    const bool europe = std::stod(request.get_param_value("latitude")) > 35;
    nlohmann::json body = recording(std::string(kind) + (europe ? "-berlin.json" : "-nairobi.json"));
    movedToNow(body);
    if (missingField)
        body["current"].erase(std::string(kind) == "air" ? "pm2_5" : "temperature_2m");
    response.set_content(body.dump(), "application/json");
}
