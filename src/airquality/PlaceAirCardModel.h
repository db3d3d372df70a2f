// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "airquality/AqiClassification.h"

#include <QGeoCoordinate>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariant>

struct AirQualityData;
struct WeatherData;

// The map's card about the air at a place a search found: its status, eight
// readings and weather, from the same scripts as the dashboard. Once both
// readings have arrived, a signed-in user's search goes to their account's
// history as a location log, with the device's own position beside it.
class PlaceAirCardModel : public QObject
{
    Q_OBJECT
    // A LocationDetails; every place set, the same one again too, is asked for afresh.
    Q_PROPERTY(QVariant place READ place WRITE setPlace NOTIFY placeChanged)
    // The device's last position; invalid while none is known.
    Q_PROPERTY(QGeoCoordinate deviceLocation MEMBER m_deviceLocation)
    Q_PROPERTY(QString placeName READ placeName NOTIFY placeChanged)
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(bool savesToHistory READ savesToHistory NOTIFY placeChanged)

    Q_PROPERTY(QString txt_status READ txtStatus NOTIFY readingsChanged)
    Q_PROPERTY(QColor statusColor READ statusColor NOTIFY readingsChanged)
    Q_PROPERTY(QColor statusTextColor READ statusTextColor NOTIFY readingsChanged)
    Q_PROPERTY(QString aqiValue READ aqiValue NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_co MEMBER txt_co NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_no MEMBER txt_no NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_no2 MEMBER txt_no2 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_o3 MEMBER txt_o3 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_so2 MEMBER txt_so2 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_pm25 MEMBER txt_pm25 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_pm10 MEMBER txt_pm10 NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_nh3 MEMBER txt_nh3 NOTIFY readingsChanged)
    Q_PROPERTY(QString celsiusText MEMBER m_celsiusText NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_humid MEMBER txt_humid NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_wind MEMBER txt_wind NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_uv MEMBER txt_uv NOTIFY readingsChanged)
    Q_PROPERTY(QString txt_pollen MEMBER txt_pollen NOTIFY readingsChanged)

public:
    enum class Phase { Empty, Loading, Ready, Failed };
    Q_ENUM(Phase)

    explicit PlaceAirCardModel(QObject *parent = nullptr);

    QVariant place() const { return m_place; }
    void setPlace(const QVariant &place);
    QString placeName() const;
    Phase phase() const { return m_phase; }
    bool savesToHistory() const { return !m_userId.isEmpty(); }
    QString txtStatus() const { return m_status.txt_status; }
    QColor statusColor() const { return m_status.statusColor; }
    QColor statusTextColor() const { return AqiClassification::readableTextOn(m_status.statusColor); }
    QString aqiValue() const { return m_status.aqiValue; }

Q_SIGNALS:
    void placeChanged();
    void phaseChanged();
    void readingsChanged();

private:
    void setPhase(Phase phase);
    // The first record of a list for this place's request; an empty list or a failure fails the card.
    template<typename T> void fetchFirst(const QUrl &url, int request);
    void apply(const AirQualityData &air);
    void apply(const WeatherData &weather);
    void failed();
    void settleIfComplete();
    void sendLog() const;

    QVariant m_place;
    QGeoCoordinate m_deviceLocation;
    QString m_userId;
    QString m_searchlat, m_searchlog;
    // Answers to an earlier place's requests are dropped.
    int m_request = 0;
    bool m_airArrived = false, m_weatherArrived = false;
    Phase m_phase = Phase::Empty;

    AqiStatus m_status;
    QString txt_aqi, txt_co, txt_no, txt_no2, txt_o3, txt_so2, txt_pm25, txt_pm10, txt_nh3;
    QString m_roundedCelsius, m_celsiusText, txt_humid, txt_wind, txt_uv, txt_pollen;
};
