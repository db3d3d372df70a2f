// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/WeatherData.h"

#include "records/FieldTable.h"

namespace
{
constexpr TextField<WeatherData> fields[] = {
    { "id", &WeatherData::id },     { "temp", &WeatherData::temp }, { "humid", &WeatherData::humid },
    { "wind", &WeatherData::wind }, { "uv", &WeatherData::uv },     { "pollen", &WeatherData::pollen },
};
}

DecodeResult<WeatherData> WeatherData::fromJson(const QJsonObject &object)
{
    return decodeFields(object, fields);
}
