// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/HistoryService.h"

#include "server/Query.h"
#include "server/ReadingSources.h"
#include "server/Records.h"
#include "server/RequestLog.h"

#include <nlohmann/json.hpp>

namespace
{
constexpr std::int64_t longestRange = 365 * 24 * 3600;
constexpr std::int64_t lastSecondOf9999 = 253402300799;

Json number(const std::optional<double> &value)
{
    return value ? Json(*value) : Json();
}

Json entry(const HourOfAir &hour)
{
    const Concentrations &c = hour.concentrations;
    return { { "main", { { "aqi", hour.openWeatherIndex } } },
             { "components",
               { { "co", number(c.co) },
                 { "no", number(c.no) },
                 { "no2", number(c.no2) },
                 { "o3", number(c.o3) },
                 { "so2", number(c.so2) },
                 { "pm2_5", number(c.pm25) },
                 { "pm10", number(c.pm10) },
                 { "nh3", number(c.nh3) } } },
             { "dt", hour.time } };
}
} // namespace

HistoryService::HistoryService(std::string apiKey, ReadingSources &sources)
    : m_apiKey(std::move(apiKey))
    , m_sources(sources)
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
        const Sourced<std::vector<HourOfAir>> hours = m_sources.history(lat, lon, start, end);
        Json list = Json::array();
        for (const HourOfAir &hour : hours.reading)
            list.push_back(entry(hour));
        const Json body { { "coord", { { "lon", lon }, { "lat", lat } } }, { "list", std::move(list) } };
        response.set_header(readingSourceHeader, hours.source);
        response.set_content(body.dump(), "application/json");
    } catch (const BadInput &error) {
        refuse(response, 400, error.what());
    }
}
