// SPDX-License-Identifier: GPL-3.0-or-later
#include "TilePainter.h"

#include "TileStyle.h"
#include "UsedColours.h"

#include <QPainter>
#include <QPainterPath>

namespace
{
constexpr int tileSize = 256;
// How far past its edge a tile looks for outlines, in pixels: a border's
// stroke or an antialiased coast just outside still touches its last pixels.
constexpr double reachPastEdge = 2;
constexpr double haloWidth = 3;

double worldSize(int zoom)
{
    return double(tileSize) * (1 << zoom);
}

// Thinner on the world-sized levels, where borders crowd.
double borderWidth(int zoom)
{
    return zoom < 3 ? 0.6 : 1.0;
}
} // namespace

TilePainter::TilePainter(WorldShapes shapes, int deepestLevel)
    : m_shapes(std::move(shapes))
    , m_palette(TileStyle::palette())
{
    for (int zoom = 0; zoom <= deepestLevel; ++zoom)
        m_labelsByLevel.append(placeCityLabels(m_shapes.places, zoom));
}

QImage TilePainter::paint(int zoom, int x, int y) const
{
    QImage tile(tileSize, tileSize, QImage::Format_RGB32);
    tile.fill(TileStyle::water);
    const double scale = worldSize(zoom);
    const QPointF tileOrigin(x * tileSize, y * tileSize);
    const QTransform toTile = QTransform::fromTranslate(-tileOrigin.x(), -tileOrigin.y()).scale(scale, scale);
    // The tile and its margin in map units, where the outlines are.
    const QRectF reach = QRectF(tileOrigin, QSizeF(tileSize, tileSize)).adjusted(-reachPastEdge, -reachPastEdge, reachPastEdge, reachPastEdge);
    const QRectF reachInMap(reach.topLeft() / scale, reach.size() / scale);

    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    paintLand(painter, toTile, reachInMap);
    paintBorders(painter, toTile, reachInMap, zoom);
    paintLabels(painter, zoom, tileOrigin);
    painter.end();
    return withUsedColoursOnly(tile.convertToFormat(QImage::Format_Indexed8, m_palette));
}

void TilePainter::paintLand(QPainter &painter, const QTransform &toTile, const QRectF &reach) const
{
    QPainterPath land;
    land.setFillRule(Qt::OddEvenFill);
    for (const MapOutline &ring : m_shapes.land) {
        if (ring.bounds.intersects(reach))
            land.addPolygon(toTile.map(ring.points));
    }
    painter.fillPath(land, QColor(TileStyle::land));
}

void TilePainter::paintBorders(QPainter &painter, const QTransform &toTile, const QRectF &reach, int zoom) const
{
    painter.setPen(QPen(QColor(TileStyle::border), borderWidth(zoom), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const MapOutline &line : m_shapes.borders) {
        if (line.bounds.intersects(reach))
            painter.drawPolyline(toTile.map(line.points));
    }
}

void TilePainter::paintLabels(QPainter &painter, int zoom, const QPointF &tileOrigin) const
{
    const QRectF tile(tileOrigin, QSizeF(tileSize, tileSize));
    const QPen halo(QColor(TileStyle::labelHalo), haloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    for (const CityLabel &label : m_labelsByLevel.at(zoom)) {
        // A label by the antimeridian reaches into the tiles at the world's other edge.
        for (const double shift : { -worldSize(zoom), 0.0, worldSize(zoom) }) {
            const QPointF offset = QPointF(shift, 0) - tileOrigin;
            if (!label.box.translated(shift, 0).intersects(tile))
                continue;
            painter.setPen(QPen(QColor(TileStyle::labelHalo), label.capital ? 1.5 : 1));
            painter.setBrush(QColor(TileStyle::labelText));
            painter.drawEllipse(label.dot + offset, label.dotRadius, label.dotRadius);
            QPainterPath name;
            name.addText(label.baseline + offset, TileStyle::labelFont(label.capital), label.name);
            painter.strokePath(name, halo);
            painter.fillPath(name, QColor(TileStyle::labelText));
        }
    }
}
