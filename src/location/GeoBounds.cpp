// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/GeoBounds.h"

#include <QtMath>

#include <cmath>

namespace
{
// The mean radius QGeoCoordinate::distanceTo uses, in metres.
constexpr double earthRadius = 6371007.2;
} // namespace

QVector<GeoBox> boxesAround(const QGeoCoordinate &centre, double radius)
{
    const double angle = radius / earthRadius;
    if (angle >= M_PI)
        return { GeoBox { -90, 90, -180, 180 } };
    const double latitude = qDegreesToRadians(centre.latitude());
    const double south = centre.latitude() - qRadiansToDegrees(angle);
    const double north = centre.latitude() + qRadiansToDegrees(angle);
    // The widest longitude a cap of this angular radius reaches, which is
    // wider than at the centre's own latitude because meridians converge.
    const double sine = std::sin(angle) / std::cos(latitude);
    if (south <= -90 || north >= 90 || sine >= 1)
        return { GeoBox { std::max(south, -90.0), std::min(north, 90.0), -180, 180 } };
    const double spread = qRadiansToDegrees(std::asin(sine));
    const double west = centre.longitude() - spread;
    const double east = centre.longitude() + spread;
    if (west < -180)
        return { GeoBox { south, north, -180, east }, GeoBox { south, north, west + 360, 180 } };
    if (east > 180)
        return { GeoBox { south, north, west, 180 }, GeoBox { south, north, -180, east - 360 } };
    return { GeoBox { south, north, west, east } };
}
