// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonObject>
#include <QVector>

// The OpenWeatherMap air-pollution history answer, reduced to what the
// history view shows: the hourly index. Other members of the answer (its
// coordinate, each entry's components) are ignored.

struct AQIMain {
    qint64 aqi = 0; // 1 to 5

    static DecodeResult<AQIMain> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};

struct AQIEntry {
    AQIMain main;
    // Unix time of the hourly reading. Read as any number, unlike the current
    // reading's whole-second dt, so both forms the service may send decode.
    double dt = 0;

    static DecodeResult<AQIEntry> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};

struct AQIResponse {
    QVector<AQIEntry> list;

    static DecodeResult<AQIResponse> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};
