// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WorldShapes.h"

#include <QVector>

// A city's dot and name as drawn at one zoom level, in that level's world
// pixels (the whole world is 256 · 2^zoom pixels square).
struct CityLabel {
    QString name;
    bool capital = false;
    QPointF dot;
    double dotRadius = 0;
    QPointF baseline; // where the name's text starts
    QRectF box; // dot and name, with room for the halo
};

// The labels of one zoom level: capitals from level 3, cities of a million
// people or more from level 5 and of 200,000 from level 6 on. They
// are placed for the whole world at once, capitals first and then the most
// populous, each left out if it would overlap one already placed; so a label
// that straddles two tiles is the same on both.
QVector<CityLabel> placeCityLabels(const QVector<MapPlace> &places, int zoom);
