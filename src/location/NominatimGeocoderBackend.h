// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/GeocoderBackend.h"

#include <QGeoServiceProvider>
#include <QObject>

#include <optional>

class QGeoCodeReply;

// Asks a Nominatim server through Qt Location's osm plugin.
class NominatimGeocoderBackend : public GeocoderBackend
{
public:
    // `serverUrl` is the server's root, e.g. "https://nominatim.example.org".
    explicit NominatimGeocoderBackend(const QString &serverUrl);

    void reverseGeocode(const QGeoCoordinate &location, Geocoder::Completion done) override;
    void geocode(const QString &address, Geocoder::Completion done) override;

private:
    // Completes with the reply's locations once it finishes; a reverse lookup's
    // placemarks are located at the point asked about.
    void complete(QGeoCodeReply *reply, Geocoder::Completion done, std::optional<QGeoCoordinate> askedPoint);
    void fail(const QString &error, Geocoder::Completion done);

    QGeoServiceProvider m_provider;
    // Completions run through it, so none runs once it is gone.
    QObject m_receiver;
};
