// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGeoCoordinate>
#include <QGeoPositionInfoSource>

// A device that never moves: it reports one position each time it is started
// or asked.
class FixedPositionSource : public QGeoPositionInfoSource
{
    Q_OBJECT

public:
    FixedPositionSource(const QGeoCoordinate &position, QObject *parent);

    QGeoPositionInfo lastKnownPosition(bool fromSatellitePositioningMethodsOnly = false) const override;
    PositioningMethods supportedPositioningMethods() const override;
    int minimumUpdateInterval() const override;
    Error error() const override;

public Q_SLOTS:
    void startUpdates() override;
    void stopUpdates() override;
    void requestUpdate(int timeout = 0) override;

private:
    QGeoPositionInfo current() const;

    QGeoCoordinate m_position;
    bool m_reported = false;
};
