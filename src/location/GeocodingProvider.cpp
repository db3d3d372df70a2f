// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/GeocodingProvider.h"

#include "common/Console.h"

GeocodingProvider::GeocodingProvider(QObject *parent)
    : LocationProvider(parent)
    , m_geocoder(new Geocoder(this))
{
}

void GeocodingProvider::didUpdateLocations(const QList<QGeoPositionInfo> &locations)
{
    if (locations.isEmpty())
        return;
    publishNewest(locations);
    m_geocoder->reverseGeocodeLocation(locations.last().coordinate(), [this](const QList<Placemark> &placemarks, const QString &error) {
        if (!error.isEmpty()) {
            Console::printLine(QStringLiteral("Error during reverse geocoding: ") + error);
            return;
        }
        if (placemarks.isEmpty())
            return;
        m_townName = placemarks.first().locality.value_or(QString());
        Q_EMIT townNameChanged();
    });
}
