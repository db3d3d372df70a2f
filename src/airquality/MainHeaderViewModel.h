// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "airquality/AirAlertMonitor.h"
#include "airquality/AqiClassification.h"
#include "airquality/PositionedPanel.h"
#include "location/GeocodingProvider.h"
#include "storage/AlertStore.h"

struct AirQualityData;

// The dashboard's header: the air-quality index and the eight pollutant
// readings at the user's position, as the backend reports them, and the
// status the index category stands for.
class MainHeaderViewModel : public PositionedPanel
{
    Q_OBJECT
    // Names the town of each position too.
    Q_PROPERTY(GeocodingProvider *locationManager READ locationManager CONSTANT)
    Q_PROPERTY(QString txt_aqi MEMBER txt_aqi NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_co MEMBER txt_co NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_no MEMBER txt_no NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_no2 MEMBER txt_no2 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_o3 MEMBER txt_o3 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_so2 MEMBER txt_so2 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_pm25 MEMBER txt_pm25 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_pm10 MEMBER txt_pm10 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_nh3 MEMBER txt_nh3 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_status READ txtStatus NOTIFY statusChanged)
    Q_PROPERTY(QString aqiValue READ aqiValue NOTIFY statusChanged)
    Q_PROPERTY(QString towndate READ towndate CONSTANT)
    Q_PROPERTY(QColor statusColor READ statusColor NOTIFY statusChanged)
    // The colour of text drawn on statusColor.
    Q_PROPERTY(QColor statusTextColor READ statusTextColor NOTIFY statusChanged)
    // "Last reading: Moderate in Nairobi, 3 h ago" from an earlier run, until
    // an answer comes; empty when there is none of the last 24 hours.
    Q_PROPERTY(QString lastReadingText READ lastReadingText NOTIFY lastReadingTextChanged)

public:
    explicit MainHeaderViewModel(QObject *parent = nullptr);

    LocationManagerFunHD *locationManager() const { return m_locationManager; }
    QString txtStatus() const { return m_status.txt_status; }
    QString aqiValue() const { return m_status.aqiValue; }
    QString towndate() const { return m_towndate; }
    QColor statusColor() const { return m_status.statusColor; }
    QColor statusTextColor() const { return AqiClassification::readableTextOn(m_status.statusColor); }
    QString lastReadingText() const;

Q_SIGNALS:
    void readingsChanged();
    void statusChanged();
    void lastReadingTextChanged();

private Q_SLOTS:
    // Every 30 minutes: the same request again, if alerts are on.
    void checkAlertsAgain();

private:
    MainHeaderViewModel(LocationManagerFunHD *locationManager, QObject *parent);
    void requestReadings(const QUrl &url) override;
    void apply(const AirQualityData &reading);
    void classify();
    void keep(const AirQualityData &reading);

    LocationManagerFunHD *m_locationManager;
    QString txt_aqi = QStringLiteral("0");
    QString txt_co = QStringLiteral("0");
    QString txt_no = QStringLiteral("0");
    QString txt_no2 = QStringLiteral("0");
    QString txt_o3 = QStringLiteral("0");
    QString txt_so2 = QStringLiteral("0");
    QString txt_pm25 = QStringLiteral("0");
    QString txt_pm10 = QStringLiteral("0");
    QString txt_nh3 = QStringLiteral("0");
    AqiStatus m_status;
    QString m_towndate = QStringLiteral("Location");
    AlertStore m_store;
    AirAlertMonitor m_alerts { m_store };
    std::optional<LastReading> m_lastReading;
    // While alerts are on, the air is checked this often even if nothing moves.
    QTimer m_alertChecks;
};
