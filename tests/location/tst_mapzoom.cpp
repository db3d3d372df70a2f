// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/MapCamera.h"
#include "location/MapZoom.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

namespace
{
CoordinateRegion region(double latitude, double span)
{
    return CoordinateRegion { QGeoCoordinate(latitude, 0), span, span };
}

// Zoom at which `pixels` show `degrees` of longitude, 256-pixel tiles.
double longitudeFit(double pixels, double degrees)
{
    return std::log2(pixels * 360 / (256 * degrees));
}
} // namespace

class MapZoomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTighterSpanDecides()
    {
        // A whole tile shows the whole world's width at zoom 0.
        QCOMPARE(zoomLevelShowing(CoordinateRegion { QGeoCoordinate(0, 0), 1, 360 }, QSizeF(256, 256)), 0.0);
        // A phone held upright: the width is the short side.
        QVERIFY(qFuzzyCompare(zoomLevelShowing(region(-1.2864, 0.05), QSizeF(390, 700)), longitudeFit(390, 0.05)));
        // On the equator a degree is as tall as it is wide, so a square view fits both spans alike.
        QVERIFY(std::abs(zoomLevelShowing(region(0, 0.05), QSizeF(400, 400)) - longitudeFit(400, 0.05)) < 1e-6);
        // At 60° a degree of latitude is drawn twice as tall: one zoom level less to fit it.
        QVERIFY(std::abs(zoomLevelShowing(region(60, 0.05), QSizeF(400, 400)) - (longitudeFit(400, 0.05) - 1)) < 1e-3);
        // A wide, low view: the height decides.
        QVERIFY(zoomLevelShowing(region(0, 0.05), QSizeF(1000, 200)) < longitudeFit(1000, 0.05) - 2);
    }

    void neverBelowTheWholeWorld()
    {
        QCOMPARE(zoomLevelShowing(region(0, 0.05), QSizeF(390, 0)), 0.0);
        QCOMPARE(zoomLevelShowing(CoordinateRegion { QGeoCoordinate(0, 0), 170, 360 }, QSizeF(64, 64)), 0.0);
        // Near a pole the span is measured up to the Mercator map's edge.
        QVERIFY(std::isfinite(zoomLevelShowing(region(89.99, 0.05), QSizeF(390, 700))));
    }

    void shippedTilesBoundTheZoomToTheirDeepestLevel()
    {
        QTemporaryDir tiles;
        QCOMPARE(deepestTileLevel(tiles.path()), -1);
        QCOMPARE(deepestTileLevel(tiles.filePath(QStringLiteral("missing"))), -1);
        // Levels are numbers, not names: 10 is deeper than 9; anything else is no level.
        for (const char *name : { "0", "2", "9", "10", "cache", "11.png" })
            QVERIFY(QDir(tiles.path()).mkdir(QString::fromLatin1(name)));
        QCOMPARE(deepestTileLevel(tiles.path()), 10);

        QCOMPARE(zoomLevelWithinTiles(13.5, 6), 6.0);
        QCOMPARE(zoomLevelWithinTiles(3.5, 6), 3.5);
        // A server's tiles have no deepest level: the map's own maximum holds.
        QCOMPARE(zoomLevelWithinTiles(13.5, -1), 13.5);
    }

    // --map-view LAT,LON,ZOOM: the whole world (zoom 0) is a view; a negative
    // zoom, a place off the globe or a missing number is none.
    void mapViewTextNeedsAPlaceAndAZoomOfZeroOrMore()
    {
        const std::optional<MapCamera> world = MapCamera::fromText(QStringLiteral("0,0,0"));
        QVERIFY(world);
        QCOMPARE(world->zoomLevel, 0.0);
        QCOMPARE(MapCamera::fromText(QStringLiteral("-4.05,39.67,6"))->center, QGeoCoordinate(-4.05, 39.67));
        for (const char *refused : { "0,0,-1", "91,0,3", "0,0", "x,0,3" })
            QVERIFY2(!MapCamera::fromText(QString::fromLatin1(refused)), refused);
    }
};

QTEST_GUILESS_MAIN(MapZoomTest)
#include "tst_mapzoom.moc"
