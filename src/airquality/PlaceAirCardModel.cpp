// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/PlaceAirCardModel.h"

#include "airquality/MainWeatherViewModel.h"
#include "location/LocationDetails.h"
#include "records/AirQualityData.h"
#include "records/WeatherData.h"
#include "service/BackendQuery.h"
#include "service/LocationLogUpload.h"
#include "service/RecordFetch.h"
#include "storage/SQliteLogin.h"

PlaceAirCardModel::PlaceAirCardModel(QObject *parent)
    : QObject(parent)
{
}

QString PlaceAirCardModel::placeName() const
{
    return m_place.value<LocationDetails>().name;
}

void PlaceAirCardModel::setPhase(Phase phase)
{
    if (phase == m_phase)
        return;
    m_phase = phase;
    Q_EMIT phaseChanged();
}

void PlaceAirCardModel::setPlace(const QVariant &place)
{
    const int request = ++m_request;
    m_place = place;
    const QList<User> users = SQliteLogin().readAll();
    m_userId = users.isEmpty() ? QString() : users.first().userid;
    m_airArrived = m_weatherArrived = false;
    m_status = AqiStatus();
    Q_EMIT placeChanged();
    if (!place.canConvert<LocationDetails>()) {
        setPhase(Phase::Empty);
        return;
    }
    const LocationDetails details = place.value<LocationDetails>();
    m_searchlat = coordinateText(details.latitude);
    m_searchlog = coordinateText(details.longitude);
    const auto url = [this](BackendScript script) { return requestUrl(backendRequestText(script, { { "lat", m_searchlat }, { "lon", m_searchlog } })); };
    const QUrl airUrl = url(BackendScript::AirQuality), weatherUrl = url(BackendScript::Weather);
    if (airUrl.isEmpty() || weatherUrl.isEmpty()) {
        setPhase(Phase::Failed);
        return;
    }
    setPhase(Phase::Loading);
    fetchFirst<AirQualityData>(airUrl, request);
    fetchFirst<WeatherData>(weatherUrl, request);
}

template<typename T> void PlaceAirCardModel::fetchFirst(const QUrl &url, int request)
{
    fetchRecords<T>(
        url, this,
        [this, request](const QVector<T> &records) {
            if (request != m_request)
                return;
            if (records.isEmpty())
                return failed();
            apply(records.first());
        },
        [this, request](const QString &) {
            if (request == m_request)
                failed();
        });
}

void PlaceAirCardModel::apply(const AirQualityData &air)
{
    txt_aqi = air.aqi, txt_co = air.co, txt_no = air.no, txt_no2 = air.no2, txt_o3 = air.o3;
    txt_so2 = air.so2, txt_pm25 = air.pm25, txt_pm10 = air.pm10, txt_nh3 = air.nh3;
    AqiClassification::classify(txt_aqi, m_status);
    m_airArrived = true;
    Q_EMIT readingsChanged();
    settleIfComplete();
}

void PlaceAirCardModel::apply(const WeatherData &weather)
{
    const std::optional<QString> rounded = MainWeatherViewModel::roundedCelsiusFor(weather.temp);
    if (!rounded)
        return failed();
    txt_humid = weather.humid, txt_wind = weather.wind, txt_uv = weather.uv, txt_pollen = weather.pollen;
    m_roundedCelsius = *rounded;
    m_celsiusText = *rounded + QStringLiteral("°C");
    m_weatherArrived = true;
    Q_EMIT readingsChanged();
    settleIfComplete();
}

void PlaceAirCardModel::failed()
{
    // A place whose readings did not all arrive is logged nowhere.
    ++m_request;
    setPhase(Phase::Failed);
}

void PlaceAirCardModel::settleIfComplete()
{
    if (!m_airArrived || !m_weatherArrived)
        return;
    setPhase(Phase::Ready);
    if (savesToHistory())
        sendLog();
}

void PlaceAirCardModel::sendLog() const
{
    const auto deviceText = [this](double degrees) { return m_deviceLocation.isValid() ? coordinateText(degrees) : QStringLiteral("0"); };
    sendLocationLog({ { "txt_aqi", txt_aqi },
                      { "txt_co", txt_co },
                      { "txt_no", txt_no },
                      { "txt_no2", txt_no2 },
                      { "txt_o3", txt_o3 },
                      { "txt_so2", txt_so2 },
                      { "txt_pm25", txt_pm25 },
                      { "txt_pm10", txt_pm10 },
                      { "txt_nh3", txt_nh3 },
                      { "roundedCelsius", m_roundedCelsius },
                      { "txt_humid", txt_humid },
                      { "txt_wind", txt_wind },
                      { "txt_uv", txt_uv },
                      { "txt_pollen", txt_pollen },
                      { "txt_lat", deviceText(m_deviceLocation.latitude()) },
                      { "txt_log", deviceText(m_deviceLocation.longitude()) },
                      { "searchlat", m_searchlat },
                      { "searchlog", m_searchlog },
                      { "user_id", m_userId } },
                    this);
}
