// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CityLabels.h"
#include "WorldShapes.h"

#include <QImage>

// Paints the 256-pixel web-Mercator tiles of the world, level by level:
// water, then land, then the borders, then the city labels. Painting a tile
// changes nothing, so tiles may be painted on several threads at once.
class TilePainter
{
public:
    TilePainter(WorldShapes shapes, int deepestLevel);

    // The tile in the palette's colours (see TileStyle.h), ready to be stored.
    QImage paint(int zoom, int x, int y) const;

private:
    void paintLand(QPainter &painter, const QTransform &toTile, const QRectF &reach) const;
    void paintBorders(QPainter &painter, const QTransform &toTile, const QRectF &reach, int zoom) const;
    void paintLabels(QPainter &painter, int zoom, const QPointF &tileOrigin) const;

    WorldShapes m_shapes;
    QVector<QVector<CityLabel>> m_labelsByLevel;
    QVector<QRgb> m_palette;
};
