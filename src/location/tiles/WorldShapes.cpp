// SPDX-License-Identifier: GPL-3.0-or-later
#include "WorldShapes.h"

#include "Antimeridian.h"
#include "WebMercator.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{
// Past the square's edge, so that a ring closed round a pole fills the last row of pixels too.
constexpr double beyondNorthEdge = -0.01;
constexpr double beyondSouthEdge = 1.01;

// [longitude, latitude, longitude, latitude, ...]
QPolygonF lonLatPoints(const QJsonArray &flat)
{
    QPolygonF points;
    points.reserve(flat.size() / 2);
    for (int i = 0; i + 1 < flat.size(); i += 2)
        points.append({ flat[i].toDouble(), flat[i + 1].toDouble() });
    return points;
}

MapOutline projected(const QPolygonF &lonLat, double shift, bool closeRoundPole)
{
    MapOutline outline;
    outline.points.reserve(lonLat.size() + 2);
    for (const QPointF &point : lonLat)
        outline.points.append(mercatorPoint(point.x() + shift, point.y()));
    if (closeRoundPole) {
        const bool south = outline.points.constFirst().y() > 0.5;
        const double edge = south ? beyondSouthEdge : beyondNorthEdge;
        outline.points.append({ outline.points.constLast().x(), edge });
        outline.points.append({ outline.points.constFirst().x(), edge });
    }
    outline.bounds = outline.points.boundingRect();
    return outline;
}

// Each outline once, or a copy for each whole turn it reaches past ±180°.
QVector<MapOutline> outlines(const QJsonArray &flatOutlines, bool rings)
{
    QVector<MapOutline> result;
    result.reserve(flatOutlines.size());
    for (const QJsonValue &flat : flatOutlines) {
        const QPolygonF lonLat = unwrapped(lonLatPoints(flat.toArray()));
        if (lonLat.size() < 2)
            continue;
        const QRectF extent = lonLat.boundingRect();
        const bool roundPole = rings && goesRoundAPole(lonLat);
        for (const double shift : worldCopyShifts(extent.left(), extent.right()))
            result.append(projected(lonLat, shift, roundPole));
    }
    return result;
}

QVector<MapPlace> places(const QJsonArray &entries)
{
    QVector<MapPlace> result;
    result.reserve(entries.size());
    for (const QJsonValue &entry : entries) {
        const QJsonObject place = entry.toObject();
        result.append({ place.value(QLatin1String("name")).toString(),
                        mercatorPoint(place.value(QLatin1String("longitude")).toDouble(), place.value(QLatin1String("latitude")).toDouble()),
                        place.value(QLatin1String("population")).toVariant().toLongLong(), place.value(QLatin1String("capital")).toBool() });
    }
    return result;
}
} // namespace

std::optional<WorldShapes> readWorldShapes(const QString &path, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = path + QStringLiteral(": ") + file.errorString();
        return std::nullopt;
    }
    QJsonParseError parseError;
    const QJsonObject shapes = QJsonDocument::fromJson(file.readAll(), &parseError).object();
    if (parseError.error != QJsonParseError::NoError) {
        *error = QStringLiteral("%1: %2 at byte %3").arg(path, parseError.errorString()).arg(parseError.offset);
        return std::nullopt;
    }
    return WorldShapes { outlines(shapes.value(QLatin1String("land")).toArray(), true), outlines(shapes.value(QLatin1String("borders")).toArray(), false),
                         places(shapes.value(QLatin1String("places")).toArray()) };
}
