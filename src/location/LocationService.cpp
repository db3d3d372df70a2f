// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/LocationService.h"

#include "location/PositionSourceFactory.h"

#include <QGeoPositionInfoSource>
#include <QTimer>

LocationService::LocationService(QObject *parent)
    : LocationService(PositionSetting::fromEnvironment(), parent)
{
}

LocationService::LocationService(const PositionSetting &setting, QObject *parent)
    : QObject(parent)
    , m_setting(setting)
    , m_source(createPositionSource(setting, this))
{
    if (!m_source)
        return;
    connect(m_source, &QGeoPositionInfoSource::positionUpdated, this, [this](const QGeoPositionInfo &info) {
        if (info.isValid())
            Q_EMIT locationsUpdated({ info });
    });
    connect(m_source, QOverload<QGeoPositionInfoSource::Error>::of(&QGeoPositionInfoSource::error), this,
            [this](QGeoPositionInfoSource::Error error) { onSourceError(error); });
}

bool LocationService::locationServicesEnabled()
{
    return PositionSetting::fromEnvironment().source != PositionSetting::Source::None;
}

bool LocationService::isAuthorized(AuthorizationStatus status)
{
    return status == AuthorizationStatus::AuthorizedAlways || status == AuthorizationStatus::AuthorizedWhenInUse;
}

void LocationService::requestWhenInUseAuthorization()
{
    if (m_status != AuthorizationStatus::NotDetermined)
        return;
    const bool refused = m_setting.source == PositionSetting::Source::Denied || m_setting.source == PositionSetting::Source::None || !m_source;
    // The answer comes later, as a person's tap on a permission prompt would.
    QTimer::singleShot(0, this, [this, refused] {
        if (m_status == AuthorizationStatus::NotDetermined)
            changeAuthorization(refused ? AuthorizationStatus::Denied : AuthorizationStatus::AuthorizedWhenInUse);
    });
}

void LocationService::setDesiredAccuracy(Accuracy accuracy)
{
    if (m_source)
        m_source->setPreferredPositioningMethods(accuracy == Accuracy::Best ? QGeoPositionInfoSource::SatellitePositioningMethods
                                                                            : QGeoPositionInfoSource::AllPositioningMethods);
}

void LocationService::startUpdatingLocation()
{
    m_wantsUpdates = true;
    applyUpdates();
}

void LocationService::stopUpdatingLocation()
{
    m_wantsUpdates = false;
    applyUpdates();
}

void LocationService::changeAuthorization(AuthorizationStatus status)
{
    m_status = status;
    applyUpdates();
    Q_EMIT authorizationChanged(status);
}

void LocationService::onSourceError(int error)
{
    switch (error) {
    case QGeoPositionInfoSource::AccessError:
        changeAuthorization(AuthorizationStatus::Denied);
        return;
    case QGeoPositionInfoSource::ClosedError:
        Q_EMIT failedWithError(QStringLiteral("The position source closed."));
        return;
    case QGeoPositionInfoSource::UnknownSourceError:
        Q_EMIT failedWithError(QStringLiteral("The position source failed."));
        return;
    default:
        return;
    }
}

void LocationService::applyUpdates()
{
    const bool run = m_source && m_wantsUpdates && isAuthorized(m_status);
    if (run == m_sourceRunning)
        return;
    m_sourceRunning = run;
    if (run)
        m_source->startUpdates();
    else
        m_source->stopUpdates();
}
