// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/LocationDetails.h"

#include "common/DoubleText.h"
#include "location/Placemark.h"

#include <QStringList>

namespace
{
// Street, town, region, postcode and country, as far as they are known.
QString addressOf(const Placemark &placemark)
{
    QStringList parts;
    for (const std::optional<QString> *part :
         { &placemark.thoroughfare, &placemark.locality, &placemark.administrativeArea, &placemark.postalCode, &placemark.country }) {
        // A geocoder may know a part and still give it blank; it would leave ", ," behind.
        if (part->has_value() && !(*part)->isEmpty())
            parts.append(**part);
    }
    return parts.join(QStringLiteral(", "));
}
} // namespace

QString LocationDetails::latitudeText() const
{
    return doubleText(latitude);
}

QString LocationDetails::longitudeText() const
{
    return doubleText(longitude);
}

std::optional<LocationDetails> LocationDetails::fromPlacemark(const Placemark &placemark)
{
    if (!placemark.location)
        return std::nullopt;
    return LocationDetails { placemark.name.value_or(QStringLiteral("Unknown")), addressOf(placemark), placemark.location->latitude(),
                             placemark.location->longitude() };
}
