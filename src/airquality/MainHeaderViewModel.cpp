// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/MainHeaderViewModel.h"

#include "airquality/ReadingAge.h"
#include "records/AirQualityData.h"

MainHeaderViewModel::MainHeaderViewModel(QObject *parent)
    : MainHeaderViewModel(new LocationManagerFunHD, parent)
{
}

MainHeaderViewModel::MainHeaderViewModel(LocationManagerFunHD *locationManager, QObject *parent)
    : PositionedPanel(BackendScript::AirQuality, locationManager, parent)
    , m_locationManager(locationManager)
    , m_lastReading(m_store.lastReading())
{
    m_alertChecks.setInterval(30 * 60 * 1000);
    connect(&m_alertChecks, &QTimer::timeout, this, &MainHeaderViewModel::checkAlertsAgain);
    m_alertChecks.start();
}

void MainHeaderViewModel::checkAlertsAgain()
{
    if (m_alerts.alertsOn())
        resend();
}

QString MainHeaderViewModel::lastReadingText() const
{
    if (!m_lastReading)
        return {};
    const qint64 age = m_lastReading->time.secsTo(QDateTime::currentDateTimeUtc());
    const int index = AqiClassification::categoryNumber(m_lastReading->readings.value(0));
    if (age > 24 * 3600 || index == 0)
        return {};
    const QString town = m_lastReading->town.isEmpty() ? QString() : QStringLiteral(" in ") + m_lastReading->town;
    return QStringLiteral("Last reading: ") + AqiClassification::statusNames().at(index - 1) + town + QStringLiteral(", ") + ReadingAge::ago(age);
}

void MainHeaderViewModel::requestReadings(const QUrl &url)
{
    // An empty list still classifies, on the category received before.
    fetchFirstRecord<AirQualityData>(
        url, [this](const AirQualityData &reading) { apply(reading); }, [this] { classify(); });
}

void MainHeaderViewModel::keep(const AirQualityData &reading)
{
    m_store.saveLastReading({ { reading.aqi, reading.co, reading.no, reading.no2, reading.o3, reading.so2, reading.pm25, reading.pm10, reading.nh3 },
                              m_locationManager->townName(),
                              searchlat(),
                              searchlog(),
                              QDateTime::currentDateTimeUtc() });
    if (m_lastReading) {
        m_lastReading.reset();
        Q_EMIT lastReadingTextChanged();
    }
    m_alerts.check(reading.aqi, m_locationManager->townName());
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
    keep(reading);
}

void MainHeaderViewModel::classify()
{
    const AqiStatus before = m_status;
    AqiClassification::classify(txt_aqi, m_status);
    if (m_status != before)
        Q_EMIT statusChanged();
}
