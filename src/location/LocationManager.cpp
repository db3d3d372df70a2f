// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/LocationManager.h"

#include "common/Console.h"

LocationManager::LocationManager(QObject *parent)
    : QObject(parent)
    , m_locationManager(new LocationService(this))
{
    connect(m_locationManager, &LocationService::locationsUpdated, this, &LocationManager::didUpdateLocations);
    connect(m_locationManager, &LocationService::failedWithError, this,
            [](const QString &description) { Console::printLine(QStringLiteral("Failed to find user's location: ") + description); });
    m_locationManager->requestWhenInUseAuthorization();
}

void LocationManager::setRegionCenter(const QGeoCoordinate &center)
{
    m_region.center = center;
    Q_EMIT regionChanged();
}

void LocationManager::didUpdateLocations(const QList<QGeoPositionInfo> &locations)
{
    if (locations.isEmpty())
        return;
    // The oldest of the batch, unlike the other providers: one fix is all the map needs.
    m_userLocation = locations.first().coordinate();
    Q_EMIT userLocationChanged();
    setRegionCenter(m_userLocation);
    m_locationManager->stopUpdatingLocation();
}
