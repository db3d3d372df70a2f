// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonObject>
#include <QString>

// One reading of "airquality.php". The backend sends every value, the index
// and the concentrations too, as text; the index is the category "1" to "6".
// Note the key "pm25", unlike the OpenWeatherMap family's "pm2_5".
struct AirQualityData {
    QString id;
    QString aqi;
    QString co;
    QString no;
    QString no2;
    QString o3;
    QString so2;
    QString pm25;
    QString pm10;
    QString nh3;

    static DecodeResult<AirQualityData> fromJson(const QJsonObject &object);
};
