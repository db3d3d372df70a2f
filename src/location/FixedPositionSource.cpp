// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/FixedPositionSource.h"

#include <QDateTime>
#include <QTimer>

FixedPositionSource::FixedPositionSource(const QGeoCoordinate &position, QObject *parent)
    : QGeoPositionInfoSource(parent)
    , m_position(position)
{
}

QGeoPositionInfo FixedPositionSource::current() const
{
    return QGeoPositionInfo(m_position, QDateTime::currentDateTimeUtc());
}

QGeoPositionInfo FixedPositionSource::lastKnownPosition(bool) const
{
    return m_reported ? current() : QGeoPositionInfo();
}

QGeoPositionInfoSource::PositioningMethods FixedPositionSource::supportedPositioningMethods() const
{
    return AllPositioningMethods;
}

int FixedPositionSource::minimumUpdateInterval() const
{
    return 0;
}

QGeoPositionInfoSource::Error FixedPositionSource::error() const
{
    return NoError;
}

void FixedPositionSource::startUpdates()
{
    requestUpdate();
}

void FixedPositionSource::stopUpdates() { }

void FixedPositionSource::requestUpdate(int)
{
    // Like a real device, the answer comes after the request returns.
    QTimer::singleShot(0, this, [this] {
        m_reported = true;
        Q_EMIT positionUpdated(current());
    });
}
