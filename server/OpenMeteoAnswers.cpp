// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/OpenMeteoAnswers.h"

#include "server/UpstreamGet.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>

using nlohmann::json;

const std::vector<std::string> airVariables { "pm10",         "pm2_5",          "carbon_monoxide", "nitrogen_dioxide", "sulphur_dioxide",
                                              "ozone",        "ammonia",        "uv_index",        "alder_pollen",     "birch_pollen",
                                              "grass_pollen", "mugwort_pollen", "olive_pollen",    "ragweed_pollen" };
const std::vector<std::string> weatherVariables { "temperature_2m", "relative_humidity_2m", "wind_speed_10m" };

namespace
{
json parsed(const std::string &body)
{
    json answer = json::parse(body, nullptr, false);
    if (!answer.is_object())
        throw UpstreamError("the answer is not a JSON object");
    return answer;
}

const json &member(const json &object, const std::string &key)
{
    const auto found = object.find(key);
    if (found == object.end())
        throw UpstreamError("the answer has no \"" + key + "\"");
    return *found;
}

const json &objectMember(const json &object, const std::string &key)
{
    const json &value = member(object, key);
    if (!value.is_object())
        throw UpstreamError("\"" + key + "\" is not an object");
    return value;
}

std::optional<double> optionalNumber(const json &value, const std::string &key)
{
    if (value.is_null())
        return std::nullopt;
    if (!value.is_number())
        throw UpstreamError("\"" + key + "\" is not a number");
    return value.get<double>();
}

std::int64_t unixTime(const json &value)
{
    if (!value.is_number_integer())
        throw UpstreamError("a time is not in Unix seconds");
    return value.get<std::int64_t>();
}
} // namespace

AirAnswer readAirAnswer(const std::string &body)
{
    const json answer = parsed(body);
    const json &current = objectMember(answer, "current");
    const json &hourly = objectMember(answer, "hourly");
    AirAnswer air;
    air.currentTime = unixTime(member(current, "time"));
    const json &hours = member(hourly, "time");
    if (!hours.is_array())
        throw UpstreamError("\"time\" is not a list");
    std::transform(hours.begin(), hours.end(), std::back_inserter(air.hours), unixTime);
    if (!std::is_sorted(air.hours.begin(), air.hours.end()))
        throw UpstreamError("the hours are not in order");
    for (const std::string &variable : airVariables) {
        air.current[variable] = optionalNumber(member(current, variable), variable);
        const json &values = member(hourly, variable);
        if (!values.is_array() || values.size() != air.hours.size())
            throw UpstreamError("\"" + variable + "\" does not have one value per hour");
        std::vector<std::optional<double>> &series = air.hourly[variable];
        for (const json &value : values)
            series.push_back(optionalNumber(value, variable));
    }
    return air;
}

WeatherAnswer readWeatherAnswer(const std::string &body)
{
    const json current = objectMember(parsed(body), "current");
    std::vector<double> values;
    for (const std::string &variable : weatherVariables) {
        const std::optional<double> value = optionalNumber(member(current, variable), variable);
        if (!value)
            throw UpstreamError("\"" + variable + "\" has no value");
        values.push_back(*value);
    }
    return { values[0], values[1], values[2] };
}
