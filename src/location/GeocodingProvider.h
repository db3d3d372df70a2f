// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/Geocoder.h"
#include "location/LocationProvider.h"

// A provider that also names the town of every position it publishes.
class GeocodingProvider : public LocationProvider
{
    Q_OBJECT
    // Null until a town is known, and again after a place without one.
    Q_PROPERTY(QString townName READ townName NOTIFY townNameChanged)

public:
    explicit GeocodingProvider(QObject *parent = nullptr);

    QString townName() const { return m_townName; }
    Geocoder *geocoder() const { return m_geocoder; }

Q_SIGNALS:
    void townNameChanged();

private:
    void didUpdateLocations(const QList<QGeoPositionInfo> &locations) override;
    void didFailWithError(const QString &) override { }

    QString m_townName;
    Geocoder *m_geocoder;
};

// The dashboard header's and the history view's providers.
using LocationManagerFunHD = GeocodingProvider;
using LocationManagerDays = GeocodingProvider;
