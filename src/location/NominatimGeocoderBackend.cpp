// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/NominatimGeocoderBackend.h"

#include "location/GeoLocationPlacemark.h"

#include <QGeoAddress>
#include <QGeoCodeReply>
#include <QGeoCodingManager>

#include <memory>

namespace
{
QVariantMap osmParameters(QString serverUrl)
{
    // The plugin appends "/search" and "/reverse" to the host as given.
    while (serverUrl.endsWith(QLatin1Char('/')))
        serverUrl.chop(1);
    return {
        { QStringLiteral("osm.geocoding.host"), serverUrl },
        { QStringLiteral("osm.useragent"), QStringLiteral("Tarnelo") },
    };
}

QList<Placemark> placemarksOf(const QGeoCodeReply &reply, const std::optional<QGeoCoordinate> &askedPoint)
{
    QList<Placemark> placemarks;
    for (const QGeoLocation &location : reply.locations()) {
        // Nominatim answers a point it cannot name with an error object,
        // which the plugin turns into a location without an address.
        if (location.address().isEmpty())
            continue;
        Placemark placemark = placemarkFromGeoLocation(location);
        if (askedPoint)
            placemark.location = askedPoint;
        placemarks.append(placemark);
    }
    return placemarks;
}
} // namespace

NominatimGeocoderBackend::NominatimGeocoderBackend(const QString &serverUrl)
    : m_provider(QStringLiteral("osm"), osmParameters(serverUrl))
{
}

void NominatimGeocoderBackend::reverseGeocode(const QGeoCoordinate &location, Geocoder::Completion done)
{
    if (QGeoCodingManager *manager = m_provider.geocodingManager())
        complete(manager->reverseGeocode(location), std::move(done), location);
    else
        fail(m_provider.errorString(), std::move(done));
}

void NominatimGeocoderBackend::geocode(const QString &address, Geocoder::Completion done)
{
    if (QGeoCodingManager *manager = m_provider.geocodingManager())
        complete(manager->geocode(address, geocodeResultLimit), std::move(done), std::nullopt);
    else
        fail(m_provider.errorString(), std::move(done));
}

void NominatimGeocoderBackend::complete(QGeoCodeReply *reply, Geocoder::Completion done, std::optional<QGeoCoordinate> askedPoint)
{
    auto finish = [reply, done = std::move(done), askedPoint] {
        reply->deleteLater();
        if (reply->error() != QGeoCodeReply::NoError)
            done({}, reply->errorString());
        else
            done(placemarksOf(*reply, askedPoint), {});
    };
    // A reply can fail before it is handed over, having already said so.
    if (reply->isFinished())
        QMetaObject::invokeMethod(&m_receiver, std::move(finish), Qt::QueuedConnection);
    else
        QObject::connect(reply, &QGeoCodeReply::finished, &m_receiver, std::move(finish));
}

void NominatimGeocoderBackend::fail(const QString &error, Geocoder::Completion done)
{
    QMetaObject::invokeMethod(
        &m_receiver, [error, done = std::move(done)] { done({}, error); }, Qt::QueuedConnection);
}
