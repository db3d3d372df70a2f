// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/Placemark.h"

#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class GeocoderBackend;

// Turns positions into named places and place names into positions. The
// back end is chosen by TARNELO_GEOCODER: "offline" (the default), a gazetteer
// of populated places shipped with the app, or "nominatim:<url>", a Nominatim
// server through Qt Location's osm plugin.
class Geocoder : public QObject
{
    Q_OBJECT

public:
    // On success `error` is empty and the placemarks are best first (possibly
    // none); on failure `error` describes it and there are no placemarks.
    using Completion = std::function<void(const QList<Placemark> &placemarks, const QString &error)>;

    explicit Geocoder(QObject *parent = nullptr);
    ~Geocoder() override;

    // Both complete later on the main thread, never inside the call, and not
    // at all once this geocoder is destroyed. The lookups never block the
    // main thread.
    void reverseGeocodeLocation(const QGeoCoordinate &location, Completion done);
    void geocodeAddressString(const QString &address, Completion done);

private:
    std::unique_ptr<GeocoderBackend> m_backend;
};
