// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QVector>

#include <optional>

// One ring or line in map units (see WebMercator.h), with its bounds so that
// a tile passes over what lies elsewhere at the cost of one comparison.
struct MapOutline {
    QPolygonF points;
    QRectF bounds;
};

struct MapPlace {
    QString name;
    QPointF position; // map units
    qint64 population = 0;
    bool capital = false;
};

// What the tiles draw, in map units: the land's rings, to be filled even-odd;
// the borders between countries, open lines; and the places to label. An
// outline across the antimeridian is unwrapped and given a copy a turn away
// for the part past ±180°; a ring round a pole is closed past the map's edge.
struct WorldShapes {
    QVector<MapOutline> land;
    QVector<MapOutline> borders;
    QVector<MapPlace> places;
};

// Reads the file build-tile-shapes.mjs writes; nothing, and why in `error`,
// when it cannot.
std::optional<WorldShapes> readWorldShapes(const QString &path, QString *error);
