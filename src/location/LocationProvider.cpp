// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/LocationProvider.h"

LocationProvider::LocationProvider(QObject *parent)
    : QObject(parent)
    , m_locationManager(new LocationService(this))
{
    connect(m_locationManager, &LocationService::authorizationChanged, this, &LocationProvider::didChangeAuthorization);
    connect(m_locationManager, &LocationService::locationsUpdated, this, [this](const QList<QGeoPositionInfo> &locations) { didUpdateLocations(locations); });
    connect(m_locationManager, &LocationService::failedWithError, this, [this](const QString &description) { didFailWithError(description); });
    m_locationManager->setDesiredAccuracy(LocationService::Accuracy::Best);
    m_locationManager->requestWhenInUseAuthorization();
}

void LocationProvider::didChangeAuthorization(LocationService::AuthorizationStatus status)
{
    m_authorizationStatus = status;
    Q_EMIT authorizationStatusChanged();
    if (LocationService::isAuthorized(status))
        m_locationManager->startUpdatingLocation();
    else
        authorizationRefused();
}

void LocationProvider::publishNewest(const QList<QGeoPositionInfo> &locations)
{
    m_currentLocation = locations.last();
    Q_EMIT currentLocationChanged();
}

QGeoCoordinate LocationProvider::currentCoordinate() const
{
    return m_currentLocation ? m_currentLocation->coordinate() : QGeoCoordinate();
}

QVariant LocationProvider::authorizationStatusValue() const
{
    return m_authorizationStatus ? QVariant::fromValue(*m_authorizationStatus) : QVariant();
}
