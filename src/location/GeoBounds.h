// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGeoCoordinate>
#include <QVector>

// A latitude/longitude box in degrees that never crosses the antimeridian:
// west <= east.
struct GeoBox {
    double south;
    double north;
    double west;
    double east;
};

// Boxes that together hold every point within `radius` metres of `centre`,
// distances taken on the sphere QGeoCoordinate::distanceTo measures on: one
// box, or two where the circle crosses the antimeridian, the first of them
// holding the centre. A circle reaching a pole spans every longitude.
QVector<GeoBox> boxesAround(const QGeoCoordinate &centre, double radius);
