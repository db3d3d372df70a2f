// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Records.h"

#include "server/ProfileStore.h"
#include "server/Readings.h"
#include "server/UserStore.h"

#include <cstdio>

namespace
{
Json loginRecord(const User &user, const std::string &userid, const std::string &scode, const std::string &message)
{
    return Json { { "userid", userid },
                  { "fullname", user.details.fullname },
                  { "phonenumber", user.details.phone },
                  { "emailaddress", user.details.email },
                  { "dateofbirth", user.details.dateOfBirth },
                  { "gender", user.details.gender },
                  { "registerdate", user.registered },
                  { "scode", scode },
                  { "messageresponse", message } };
}
// What a record says where its source gave no value.
constexpr const char *unknownValue = "–";

std::string valueText(const std::optional<double> &value, int decimals)
{
    return value ? decimalText(*value, decimals) : unknownValue;
}
} // namespace

std::string decimalText(double value, int decimals)
{
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

Json acceptedRecord(const User &user, const std::string &message)
{
    return loginRecord(user, {}, "1", message);
}

Json sessionRecord(const User &user, const std::string &token, const std::string &message)
{
    return loginRecord(user, token, "1", message);
}

Json refusedRecord(const std::string &message)
{
    return loginRecord(User(), {}, "0", message);
}

Json medicalDetailsRecord(const MedicalProfile &profile)
{
    Json record { { "id", std::to_string(profile.id) }, { "userid", "" } };
    for (size_t i = 0; i < medicalFieldNames.size(); ++i)
        record[medicalFieldNames[i]] = profile.fields[i];
    record["scode"] = "1";
    record["messageresponse"] = "Medical details found.";
    return record;
}

Json medicalConditionRecord(const MedicalProfile &profile)
{
    return Json { { "id", std::to_string(profile.id) },
                  { "conditionstatus", profile.field("conditionstatus") },
                  { "conditionname", profile.field("conditionname") } };
}

Json subscriptionRecord(const Subscription &subscription)
{
    return Json {
        { "id", std::to_string(subscription.id) }, { "type", subscription.type }, { "package", subscription.package }, { "status", subscription.status }
    };
}

Json notificationRecord(const Notification &notification)
{
    return Json { { "id", std::to_string(notification.id) },
                  { "userid", "" },
                  { "topic", notification.topic },
                  { "message", notification.message },
                  { "readmessage", notification.read ? "1" : "0" },
                  { "posteddate", notification.posted } };
}

Json airQualityRecord(const AirReading &air)
{
    const Concentrations &c = air.concentrations;
    return Json { { "id", "1" },
                  { "aqi", std::to_string(air.usEpaCategory) },
                  { "co", valueText(c.co, 2) },
                  { "no", valueText(c.no, 2) },
                  { "no2", valueText(c.no2, 2) },
                  { "o3", valueText(c.o3, 2) },
                  { "so2", valueText(c.so2, 2) },
                  { "pm25", valueText(c.pm25, 2) },
                  { "pm10", valueText(c.pm10, 2) },
                  { "nh3", valueText(c.nh3, 2) } };
}

Json weatherRecord(const WeatherReading &weather)
{
    return Json { { "id", "1" },
                  { "temp", decimalText(weather.kelvin, 2) },
                  { "humid", decimalText(weather.humidityPercent, 0) },
                  { "wind", decimalText(weather.windKmh, 1) },
                  { "uv", valueText(weather.uvIndex, 1) },
                  { "pollen", weather.pollen.value_or(unknownValue) } };
}
