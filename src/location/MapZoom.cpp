// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/MapZoom.h"

#include <QDir>

#include <algorithm>
#include <cmath>

namespace
{
constexpr double tileSize = 256;
// Where web-Mercator maps end, north and south.
constexpr double mercatorLimit = 85.05112878;
constexpr double pi = 3.14159265358979323846;

// Distance from the equator in Mercator units; the whole world is 2π high.
double mercatorY(double latitude)
{
    const double clamped = std::clamp(latitude, -mercatorLimit, mercatorLimit);
    return std::log(std::tan(pi / 4 + clamped * pi / 360));
}
} // namespace

double zoomLevelShowing(const CoordinateRegion &region, const QSizeF &viewport)
{
    if (viewport.isEmpty())
        return 0;
    // At zoom z the world is tileSize * 2^z pixels around and as high.
    const double longitudeZoom = std::log2(viewport.width() * 360 / (tileSize * region.longitudeDelta));
    const double latitude = region.center.latitude();
    const double mercatorSpan = mercatorY(latitude + region.latitudeDelta / 2) - mercatorY(latitude - region.latitudeDelta / 2);
    const double latitudeZoom = std::log2(viewport.height() * 2 * pi / (tileSize * mercatorSpan));
    return std::max(0.0, std::min(longitudeZoom, latitudeZoom));
}

int deepestTileLevel(const QString &tileDirectory)
{
    int deepest = -1;
    const QStringList levels = QDir(tileDirectory).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : levels) {
        bool isLevel = false;
        const int level = name.toInt(&isLevel);
        if (isLevel && level >= 0)
            deepest = std::max(deepest, level);
    }
    return deepest;
}

double zoomLevelWithinTiles(double wanted, int deepestLevel)
{
    return deepestLevel < 0 ? wanted : std::min(wanted, double(deepestLevel));
}
