// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/AQIResponse.h"

#include "records/JsonBody.h"

DecodeResult<AQIMain> AQIMain::fromJson(const QJsonObject &object)
{
    JsonReader reader(object);
    AQIMain main;
    main.aqi = reader.integer("aqi");
    return reader.result(main);
}

QJsonObject AQIMain::toJson() const
{
    return { { QStringLiteral("aqi"), aqi } };
}

DecodeResult<AQIEntry> AQIEntry::fromJson(const QJsonObject &object)
{
    JsonReader reader(object);
    AQIEntry entry;
    entry.main = reader.record<AQIMain>("main");
    entry.dt = reader.number("dt");
    return reader.result(entry);
}

QJsonObject AQIEntry::toJson() const
{
    return { { QStringLiteral("main"), main.toJson() }, { QStringLiteral("dt"), dt } };
}

DecodeResult<AQIResponse> AQIResponse::fromJson(const QJsonObject &object)
{
    JsonReader reader(object);
    AQIResponse response;
    response.list = reader.records<AQIEntry>("list");
    return reader.result(response);
}

QJsonObject AQIResponse::toJson() const
{
    return { { QStringLiteral("list"), toJsonArray(list) } };
}
