// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/MapPollutantModel.h"

#include "records/FieldTable.h"
#include "records/JsonBody.h"

namespace
{
constexpr NumberField<Coord> coordFields[] = { { "lon", &Coord::lon }, { "lat", &Coord::lat } };

constexpr NumberField<Components> componentFields[] = {
    { "co", &Components::co },   { "no", &Components::no },       { "no2", &Components::no2 },   { "o3", &Components::o3 },
    { "so2", &Components::so2 }, { "pm2_5", &Components::pm2_5 }, { "pm10", &Components::pm10 }, { "nh3", &Components::nh3 },
};
} // namespace

DecodeResult<Coord> Coord::fromJson(const QJsonObject &object)
{
    return decodeFields(object, coordFields);
}

QJsonObject Coord::toJson() const
{
    return encodeFields(*this, coordFields);
}

DecodeResult<Main> Main::fromJson(const QJsonObject &object)
{
    JsonReader reader(object);
    Main main;
    main.aqi = reader.integer("aqi");
    return reader.result(main);
}

QJsonObject Main::toJson() const
{
    return { { QStringLiteral("aqi"), aqi } };
}

DecodeResult<Components> Components::fromJson(const QJsonObject &object)
{
    return decodeFields(object, componentFields);
}

QJsonObject Components::toJson() const
{
    return encodeFields(*this, componentFields);
}

DecodeResult<AirQuality> AirQuality::fromJson(const QJsonObject &object)
{
    JsonReader reader(object);
    AirQuality reading;
    reading.main = reader.record<Main>("main");
    reading.components = reader.record<Components>("components");
    reading.dt = reader.integer("dt");
    return reader.result(reading);
}

QJsonObject AirQuality::toJson() const
{
    return { { QStringLiteral("main"), main.toJson() }, { QStringLiteral("components"), components.toJson() }, { QStringLiteral("dt"), dt } };
}

DecodeResult<MapPollutantModel> MapPollutantModel::fromJson(const QJsonObject &object)
{
    JsonReader reader(object);
    MapPollutantModel model;
    model.coord = reader.record<Coord>("coord");
    model.list = reader.records<AirQuality>("list");
    return reader.result(model);
}

QJsonObject MapPollutantModel::toJson() const
{
    return { { QStringLiteral("coord"), coord.toJson() }, { QStringLiteral("list"), toJsonArray(list) } };
}
