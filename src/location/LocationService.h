// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/PositionSetting.h"

#include <QGeoPositionInfo>
#include <QList>
#include <QObject>

#include <optional>

class QGeoPositionInfoSource;

// The device's location service as each provider owns one: authorisation,
// accuracy, start and stop, and three callbacks as signals. Positions come
// from the source TARNELO_POSITION names and arrive as batches, newest last.
class LocationService : public QObject
{
    Q_OBJECT

public:
    enum class AuthorizationStatus { NotDetermined, Restricted, Denied, AuthorizedAlways, AuthorizedWhenInUse };
    Q_ENUM(AuthorizationStatus)
    enum class Accuracy { Default, Best };

    explicit LocationService(QObject *parent = nullptr);
    LocationService(const PositionSetting &setting, QObject *parent);

    // Whether the device has location services at all.
    static bool locationServicesEnabled();
    static bool isAuthorized(AuthorizationStatus status);

    AuthorizationStatus authorizationStatus() const { return m_status; }
    // Whether updates are started, authorised or not.
    bool isUpdatingLocation() const { return m_wantsUpdates; }
    // Decides once, and reports the decision through authorizationChanged
    // after the call returns; later requests change nothing.
    void requestWhenInUseAuthorization();
    void setDesiredAccuracy(Accuracy accuracy);
    // Positions flow while started and authorised.
    void startUpdatingLocation();
    void stopUpdatingLocation();

Q_SIGNALS:
    void authorizationChanged(LocationService::AuthorizationStatus status);
    void locationsUpdated(const QList<QGeoPositionInfo> &locations);
    void failedWithError(const QString &description);

private:
    void attachSource();
    void decideAuthorization();
    void applyAccuracy();
    void changeAuthorization(AuthorizationStatus status);
    void onSourceError(int error);
    void applyUpdates();

    PositionSetting m_setting;
    QGeoPositionInfoSource *m_source = nullptr;
    std::optional<Accuracy> m_accuracy;
    AuthorizationStatus m_status = AuthorizationStatus::NotDetermined;
    // Whether the source, or that there is none, is known yet.
    bool m_sourceChosen = false;
    bool m_authorizationAsked = false;
    bool m_wantsUpdates = false;
    bool m_sourceRunning = false;
};
