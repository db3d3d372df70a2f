// SPDX-License-Identifier: GPL-3.0-or-later
// Copied beside an installed tarnelo and run there, it looks for the shipped
// data as the app does from that place and says what it found, for
// check-installed-app.sh to judge: the place the gazetteer names at central
// Nairobi, and the map's shipped tiles.
#include "location/GazetteerFile.h"
#include "location/MapTiles.h"
#include "location/OfflineGazetteer.h"

#include <QCoreApplication>
#include <QGeoCoordinate>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);

    const QString path = gazetteerFilePath();
    QString why;
    const auto gazetteer = OfflineGazetteer::open(path, &why);
    const auto place = gazetteer ? gazetteer->placeAt(QGeoCoordinate(-1.2864, 36.8172)) : std::nullopt;
    out << "gazetteer " << path << " names " << (place && place->name ? *place->name : why) << Qt::endl;

    const MapTiles tiles = MapTiles::forThisRun();
    out << "tiles " << (tiles.shipped ? tiles.host : QStringLiteral("none shipped")) << " to level " << tiles.deepestLevel << Qt::endl;
    return 0;
}
