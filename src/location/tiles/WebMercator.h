// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>

// Map units of the web-Mercator tiles: the whole world is the unit square, x
// from 0 at 180° W to 1 at 180° E, y from 0 at its north edge to 1 at its
// south edge (about 85.05° either way). Longitudes past ±180° map past the
// square, so that an outline running across the antimeridian stays whole.
QPointF mercatorPoint(double longitude, double latitude);
