// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/TipsViewModel.h"

#include "common/Console.h"
#include "records/AirQualityData.h"
#include "service/BackendQuery.h"
#include "service/RecordFetch.h"

TipsViewModel::TipsViewModel(QObject *parent)
    : QObject(parent)
    , m_locationManager(new LocationManagerFun(this))
{
    connect(m_locationManager, &LocationProvider::currentLocationChanged, this, [this] {
        if (const auto &location = m_locationManager->currentLocation())
            showPosition(location->coordinate());
    });
}

void TipsViewModel::showPosition(const QGeoCoordinate &coordinate)
{
    txt_lat = coordinateText(coordinate.latitude());
    txt_log = coordinateText(coordinate.longitude());
    Q_EMIT positionChanged();
    const QUrl url = requestUrl(backendRequestText(BackendScript::AirQuality, { { "lat", txt_lat }, { "lon", txt_log } }));
    if (url.isEmpty())
        return;
    Console::printLine(QStringLiteral("URL PRINT  ") + url.toString());
    fetchRecords<AirQualityData>(
        url, this,
        [this](const QVector<AirQualityData> &records) {
            if (!records.isEmpty())
                apply(records.first());
        },
        [](const QString &) {});
}

void TipsViewModel::apply(const AirQualityData &reading)
{
    txt_co = reading.co;
    txt_no = reading.no;
    txt_no2 = reading.no2;
    txt_o3 = reading.o3;
    txt_so2 = reading.so2;
    txt_pm25 = reading.pm25;
    txt_pm10 = reading.pm10;
    txt_nh3 = reading.nh3;
    Q_EMIT readingsChanged();
}
