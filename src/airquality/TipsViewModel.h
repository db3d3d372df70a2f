// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/LoggingProvider.h"

#include <QObject>
#include <QString>
#include <QVariantList>

struct AirQualityData;

// The tips screen: the eight pollutant readings of the first record the
// backend reports at each position its own provider publishes. Every text
// starts empty and keeps its last value until a reading replaces it.
class TipsViewModel : public QObject
{
    Q_OBJECT
    // The screen shows the first record only and keeps no list; this stays empty.
    Q_PROPERTY(QVariantList airQualityData READ airQualityData CONSTANT)
    Q_PROPERTY(QString txt_co MEMBER txt_co NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_no MEMBER txt_no NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_no2 MEMBER txt_no2 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_o3 MEMBER txt_o3 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_so2 MEMBER txt_so2 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_pm25 MEMBER txt_pm25 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_pm10 MEMBER txt_pm10 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_nh3 MEMBER txt_nh3 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_lat MEMBER txt_lat NOTIFY positionChanged)
    Q_PROPERTY(QString txt_log MEMBER txt_log NOTIFY positionChanged)
    Q_PROPERTY(LoggingProvider *locationManager READ locationManager CONSTANT)

public:
    explicit TipsViewModel(QObject *parent = nullptr);

    QVariantList airQualityData() const { return {}; }
    LocationManagerFun *locationManager() const { return m_locationManager; }

Q_SIGNALS:
    void readingsChanged();
    void positionChanged();

private:
    // Each position sends a request, also one equal to the last.
    void showPosition(const QGeoCoordinate &coordinate);
    void apply(const AirQualityData &reading);

    QString txt_co;
    QString txt_no;
    QString txt_no2;
    QString txt_o3;
    QString txt_so2;
    QString txt_pm25;
    QString txt_pm10;
    QString txt_nh3;
    QString txt_lat;
    QString txt_log;
    LocationManagerFun *m_locationManager;
};
