// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/MainHeaderViewModel.h"

#include "records/AirQualityData.h"

MainHeaderViewModel::MainHeaderViewModel(QObject *parent)
    : MainHeaderViewModel(new LocationManagerFunHD, parent)
{
}

MainHeaderViewModel::MainHeaderViewModel(LocationManagerFunHD *locationManager, QObject *parent)
    : PositionedPanel(BackendScript::AirQuality, locationManager, parent)
    , m_locationManager(locationManager)
{
}

void MainHeaderViewModel::requestReadings(const QUrl &url)
{
    // An empty list still classifies, on the category received before.
    fetchFirstRecord<AirQualityData>(
        url, [this](const AirQualityData &reading) { apply(reading); }, [this] { classify(); });
}

void MainHeaderViewModel::apply(const AirQualityData &reading)
{
    txt_aqi = reading.aqi;
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

void MainHeaderViewModel::classify()
{
    const AqiStatus before = m_status;
    AqiClassification::classify(txt_aqi, m_status);
    if (m_status != before)
        Q_EMIT statusChanged();
}
