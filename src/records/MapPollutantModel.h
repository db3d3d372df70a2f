// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonObject>
#include <QVector>

// The OpenWeatherMap current air-pollution answer. Unlike the backend's own
// records these carry numbers, and they are written back out with the same keys.

struct Coord {
    double lon = 0;
    double lat = 0;

    static DecodeResult<Coord> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};

// The service's own index, 1 to 5.
struct Main {
    qint64 aqi = 0;

    static DecodeResult<Main> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};

// Concentrations in micrograms per cubic metre.
struct Components {
    double co = 0;
    double no = 0;
    double no2 = 0;
    double o3 = 0;
    double so2 = 0;
    double pm2_5 = 0;
    double pm10 = 0;
    double nh3 = 0;

    static DecodeResult<Components> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};

struct AirQuality {
    Main main;
    Components components;
    // Unix time of the reading; a whole number of seconds on the wire.
    qint64 dt = 0;

    static DecodeResult<AirQuality> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};

struct MapPollutantModel {
    Coord coord;
    QVector<AirQuality> list;

    static DecodeResult<MapPollutantModel> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};
