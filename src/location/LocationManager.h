// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/CoordinateRegion.h"
#include "location/LocationService.h"

#include <QObject>

// The map's provider: takes a single fix per start, shows it as the user's
// position and centres the map region on it, keeping the region's span.
class LocationManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(CoordinateRegion region READ region NOTIFY regionChanged)
    // Invalid until the first fix.
    Q_PROPERTY(QGeoCoordinate userLocation READ userLocation NOTIFY userLocationChanged)

public:
    explicit LocationManager(QObject *parent = nullptr);

    LocationService *locationManager() const { return m_locationManager; }
    CoordinateRegion region() const { return m_region; }
    QGeoCoordinate userLocation() const { return m_userLocation; }

    // Moves the region's centre; the span stays.
    void setRegionCenter(const QGeoCoordinate &center);

    Q_INVOKABLE void startUpdatingLocation() { m_locationManager->startUpdatingLocation(); }
    Q_INVOKABLE void stopUpdatingLocation() { m_locationManager->stopUpdatingLocation(); }

Q_SIGNALS:
    void regionChanged();
    void userLocationChanged();

private:
    void didUpdateLocations(const QList<QGeoPositionInfo> &locations);

    LocationService *m_locationManager;
    CoordinateRegion m_region { QGeoCoordinate(37.7749, -122.4194), 0.05, 0.05 };
    QGeoCoordinate m_userLocation;
};
