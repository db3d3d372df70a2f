// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/MapTiles.h"

#include "location/MapZoom.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QUrl>

namespace
{
// The tiles in the directory, if it holds a level.
MapTiles shippedIn(const QString &directory)
{
    MapTiles tiles;
    tiles.deepestLevel = deepestTileLevel(directory);
    if (tiles.deepestLevel < 0)
        return tiles;
    tiles.shipped = true;
    // The plugin appends "<level>/<x>/<y>.png" to the host as it is.
    tiles.host = QUrl::fromLocalFile(QDir(directory).absolutePath() + QLatin1Char('/')).toString();
    tiles.copyright = QStringLiteral("© Natural Earth");
    tiles.cacheDirectory = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/shipped-tiles");
    return tiles;
}
} // namespace

MapTiles MapTiles::forThisRun()
{
    MapTiles server;
    server.host = qEnvironmentVariable("TARNELO_TILES");
    if (!server.host.isEmpty())
        return server;
    const QDir executableDir(QCoreApplication::applicationDirPath());
    const MapTiles besideExecutable = shippedIn(executableDir.filePath(QStringLiteral("tiles")));
    if (besideExecutable.shipped)
        return besideExecutable;
    return shippedIn(QDir::cleanPath(executableDir.filePath(QStringLiteral("../share/tarnelo/tiles"))));
}
