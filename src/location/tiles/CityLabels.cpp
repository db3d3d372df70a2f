// SPDX-License-Identifier: GPL-3.0-or-later
#include "CityLabels.h"

#include "TileStyle.h"

#include <QFontMetricsF>

#include <algorithm>

namespace
{
constexpr int firstCapitalLevel = 3;
constexpr int firstCityLevel = 5;
constexpr qint64 millionCity = 1000000;
constexpr qint64 largeCity = 200000;
// Between the dot and the name, and around each label that no other may enter.
constexpr double nameGap = 4;
constexpr double clearance = 3;

bool labelled(const MapPlace &place, int zoom)
{
    if (place.capital)
        return zoom >= firstCapitalLevel;
    if (zoom < firstCityLevel)
        return false;
    return place.population >= (zoom == firstCityLevel ? millionCity : largeCity);
}

CityLabel layout(const MapPlace &place, int zoom)
{
    const double worldSize = 256.0 * (1 << zoom);
    const QFontMetricsF metrics(TileStyle::labelFont(place.capital));
    CityLabel label;
    label.name = place.name;
    label.capital = place.capital;
    label.dot = place.position * worldSize;
    label.dotRadius = place.capital ? 3.5 : 2.5;
    label.baseline = label.dot + QPointF(label.dotRadius + nameGap, (metrics.ascent() - metrics.descent()) / 2);
    const QRectF text(label.baseline.x(), label.baseline.y() - metrics.ascent(), metrics.horizontalAdvance(place.name), metrics.height());
    const QRectF dot(label.dot.x() - label.dotRadius, label.dot.y() - label.dotRadius, 2 * label.dotRadius, 2 * label.dotRadius);
    label.box = text.united(dot).adjusted(-clearance, -clearance, clearance, clearance);
    return label;
}
} // namespace

QVector<CityLabel> placeCityLabels(const QVector<MapPlace> &places, int zoom)
{
    QVector<const MapPlace *> ranked;
    for (const MapPlace &place : places) {
        if (labelled(place, zoom))
            ranked.append(&place);
    }
    std::sort(ranked.begin(), ranked.end(),
              [](const MapPlace *a, const MapPlace *b) { return a->capital != b->capital ? a->capital : a->population > b->population; });
    QVector<CityLabel> placed;
    for (const MapPlace *place : qAsConst(ranked)) {
        CityLabel label = layout(*place, zoom);
        const bool free = std::none_of(placed.cbegin(), placed.cend(), [&label](const CityLabel &other) { return other.box.intersects(label.box); });
        if (free)
            placed.append(std::move(label));
    }
    return placed;
}
