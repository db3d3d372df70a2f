// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/AirQualityData.h"

#include "records/FieldTable.h"

namespace
{
constexpr TextField<AirQualityData> fields[] = {
    { "id", &AirQualityData::id },     { "aqi", &AirQualityData::aqi }, { "co", &AirQualityData::co },   { "no", &AirQualityData::no },
    { "no2", &AirQualityData::no2 },   { "o3", &AirQualityData::o3 },   { "so2", &AirQualityData::so2 }, { "pm25", &AirQualityData::pm25 },
    { "pm10", &AirQualityData::pm10 }, { "nh3", &AirQualityData::nh3 },
};
}

DecodeResult<AirQualityData> AirQualityData::fromJson(const QJsonObject &object)
{
    return decodeFields(object, fields);
}
