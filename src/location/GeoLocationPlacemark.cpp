// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/GeoLocationPlacemark.h"

#include <QGeoAddress>

namespace
{
std::optional<QString> known(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() ? std::nullopt : std::optional<QString>(trimmed);
}
} // namespace

Placemark placemarkFromGeoLocation(const QGeoLocation &location)
{
    const QGeoAddress address = location.address();
    Placemark placemark;
    placemark.name = known(address.text().section(QLatin1Char(','), 0, 0));
    if (!placemark.name)
        placemark.name = known(address.street());
    if (!placemark.name)
        placemark.name = known(address.district());
    placemark.thoroughfare = known(address.street());
    placemark.locality = known(address.city());
    placemark.administrativeArea = known(address.state());
    placemark.postalCode = known(address.postalCode());
    placemark.country = known(address.country());
    if (location.coordinate().isValid())
        placemark.location = location.coordinate();
    return placemark;
}
