// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonObject>
#include <QString>

// One reading of "weatherapi.php", every value as text; the temperature is in
// kelvin.
struct WeatherData {
    QString id;
    QString temp;
    QString humid;
    QString wind;
    QString uv;
    QString pollen;

    static DecodeResult<WeatherData> fromJson(const QJsonObject &object);
};
