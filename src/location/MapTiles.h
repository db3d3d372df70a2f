// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>

// Where the map's tiles come from, and what follows for the map: the server
// TARNELO_TILES names, or else the tiles shipped with the app, which are read
// from disk and so draw the map without any network.
struct MapTiles {
    Q_GADGET
    // For the osm plugin's custom host, ending in a slash; empty when there
    // is neither a server nor shipped tiles, for the plugin's own street map.
    Q_PROPERTY(QString host MEMBER host)
    Q_PROPERTY(bool shipped MEMBER shipped)
    // How deep the shipped tiles go; -1 for a server's tiles.
    Q_PROPERTY(int deepestLevel MEMBER deepestLevel)
    // The credit line for the shipped tiles; empty for a server's tiles,
    // which keep whatever the plugin shows for them.
    Q_PROPERTY(QString copyright MEMBER copyright)
    // Where the plugin keeps its tile cache for the shipped tiles: a folder of
    // its own, as it files tiles by level and position alone and would mix
    // them up with a server's; empty for a server's tiles, which keep the
    // plugin's own cache.
    Q_PROPERTY(QString cacheDirectory MEMBER cacheDirectory)

public:
    QString host;
    bool shipped = false;
    int deepestLevel = -1;
    QString copyright;
    QString cacheDirectory;

    // TARNELO_TILES when set; otherwise the first of tiles/ beside the
    // executable (the build tree) and ../share/tarnelo/tiles from it
    // (installed) that holds a level.
    static MapTiles forThisRun();
};
Q_DECLARE_METATYPE(MapTiles)
