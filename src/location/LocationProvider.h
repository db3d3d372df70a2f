// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/LocationService.h"

#include <QGeoCoordinate>
#include <QGeoPositionInfo>
#include <QObject>
#include <QVariant>

#include <optional>

// What every screen's own position provider shares: it owns a location
// service, asks for when-in-use authorisation at the best accuracy, starts
// updates once authorised, and publishes the status and the newest position.
// Published fields notify on every assignment, also of an equal value.
class LocationProvider : public QObject
{
    Q_OBJECT
    // Invalid until the first position.
    Q_PROPERTY(QGeoCoordinate currentLocation READ currentCoordinate NOTIFY currentLocationChanged)
    // Null until the first decision, then a LocationService::AuthorizationStatus.
    Q_PROPERTY(QVariant authorizationStatus READ authorizationStatusValue NOTIFY authorizationStatusChanged)

public:
    LocationService *locationManager() const { return m_locationManager; }
    const std::optional<QGeoPositionInfo> &currentLocation() const { return m_currentLocation; }
    std::optional<LocationService::AuthorizationStatus> authorizationStatus() const { return m_authorizationStatus; }

    Q_INVOKABLE void startUpdatingLocation() { m_locationManager->startUpdatingLocation(); }
    Q_INVOKABLE void stopUpdatingLocation() { m_locationManager->stopUpdatingLocation(); }

Q_SIGNALS:
    void currentLocationChanged();
    void authorizationStatusChanged();

protected:
    explicit LocationProvider(QObject *parent);

    // Publishes the newest of a non-empty batch.
    void publishNewest(const QList<QGeoPositionInfo> &locations);
    virtual void authorizationRefused() { }
    virtual void didUpdateLocations(const QList<QGeoPositionInfo> &locations) = 0;
    virtual void didFailWithError(const QString &description) = 0;

private:
    void didChangeAuthorization(LocationService::AuthorizationStatus status);
    QGeoCoordinate currentCoordinate() const;
    QVariant authorizationStatusValue() const;

    std::optional<QGeoPositionInfo> m_currentLocation;
    std::optional<LocationService::AuthorizationStatus> m_authorizationStatus;
    LocationService *m_locationManager;
};
