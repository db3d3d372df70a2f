// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/HistoryService.h"

#include "server/AirSimulation.h"
#include "server/Query.h"
#include "server/Records.h"
#include "server/RequestLog.h"

#include <nlohmann/json.hpp>

namespace
{
constexpr std::int64_t hour = 3600;
constexpr std::int64_t longestRange = 365 * 24 * hour;
constexpr std::int64_t lastSecondOf9999 = 253402300799;

Json entry(double lat, double lon, std::int64_t time)
{
    const Pollutants p = simulatedAir(lat, lon, static_cast<std::time_t>(time));
    return {
        { "main", { { "aqi", openWeatherIndex(p) } } },
        { "components",
          { { "co", p.co }, { "no", p.no }, { "no2", p.no2 }, { "o3", p.o3 }, { "so2", p.so2 }, { "pm2_5", p.pm25 }, { "pm10", p.pm10 }, { "nh3", p.nh3 } } },
        { "dt", time }
    };
}
} // namespace

HistoryService::HistoryService(std::string apiKey)
    : m_apiKey(std::move(apiKey))
{
}

void HistoryService::refuse(httplib::Response &response, int status, const std::string &message)
{
    response.status = status;
    const Json body { { "cod", std::to_string(status) }, { "message", message } };
    response.set_content(body.dump(-1, ' ', false, Json::error_handler_t::replace), "application/json");
}

void HistoryService::answer(const httplib::Request &request, httplib::Response &response) const
{
    if (request.get_param_value("appid") != m_apiKey) {
        // The real service gives this one code as a number, unlike its others.
        response.status = 401;
        const Json body { { "cod", 401 }, { "message", "Invalid API key. Please see https://openweathermap.org/faq#error401 for more info." } };
        response.set_content(body.dump(), "application/json");
        return;
    }
    try {
        const Query query(request.params);
        const double lat = query.coordinate("lat", 90), lon = query.coordinate("lon", 180);
        const std::int64_t start = query.wholeNumber("start"), end = query.wholeNumber("end");
        if (end > lastSecondOf9999)
            throw BadInput("end must be a Unix time before the year 10000");
        if (end < start)
            throw BadInput("end must not be before start");
        if (end - start > longestRange)
            throw BadInput("The range from start to end must not exceed one year");
        Json list = Json::array();
        for (std::int64_t time = (start + hour - 1) / hour * hour; time <= end; time += hour)
            list.push_back(entry(lat, lon, time));
        const Json body { { "coord", { { "lon", lon }, { "lat", lat } } }, { "list", std::move(list) } };
        response.set_header(readingSourceHeader, "simulated");
        response.set_content(body.dump(), "application/json");
    } catch (const BadInput &error) {
        refuse(response, 400, error.what());
    }
}
