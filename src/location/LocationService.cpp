// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/LocationService.h"

#include "common/AfterFirstFrame.h"
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
{
    // A device's source loads a plugin and reaches the system's location
    // service, a replayed log reads its file: the first frame does not wait
    // for them. A fixed position is there at once and costs nothing.
    if (setting.source == PositionSetting::Source::Fixed)
        attachSource();
    else
        AfterFirstFrame::run(this, [this] { attachSource(); });
}

void LocationService::attachSource()
{
    m_source = createPositionSource(m_setting, this);
    m_sourceChosen = true;
    if (m_source) {
        connect(m_source, &QGeoPositionInfoSource::positionUpdated, this, [this](const QGeoPositionInfo &info) {
            if (info.isValid())
                Q_EMIT locationsUpdated({ info });
        });
        connect(m_source, QOverload<QGeoPositionInfoSource::Error>::of(&QGeoPositionInfoSource::error), this,
                [this](QGeoPositionInfoSource::Error error) { onSourceError(error); });
        applyAccuracy();
    }
    if (m_authorizationAsked)
        decideAuthorization();
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
    if (m_status != AuthorizationStatus::NotDetermined || m_authorizationAsked)
        return;
    m_authorizationAsked = true;
    if (m_sourceChosen)
        decideAuthorization();
}

// The answer comes later, as a person's tap on a permission prompt would.
void LocationService::decideAuthorization()
{
    const bool refused = m_setting.source == PositionSetting::Source::Denied || m_setting.source == PositionSetting::Source::None || !m_source;
    QTimer::singleShot(0, this, [this, refused] {
        if (m_status == AuthorizationStatus::NotDetermined)
            changeAuthorization(refused ? AuthorizationStatus::Denied : AuthorizationStatus::AuthorizedWhenInUse);
    });
}

void LocationService::setDesiredAccuracy(Accuracy accuracy)
{
    m_accuracy = accuracy;
    applyAccuracy();
}

void LocationService::applyAccuracy()
{
    if (m_source && m_accuracy)
        m_source->setPreferredPositioningMethods(*m_accuracy == Accuracy::Best ? QGeoPositionInfoSource::SatellitePositioningMethods
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
