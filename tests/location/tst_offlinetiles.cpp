// SPDX-License-Identifier: GPL-3.0-or-later
// The map's zoom over a region, bounded by the shipped tiles; those tiles as
// the build painted them, checked at places whose tiles and pixels were
// worked out by hand from the web-Mercator tiling; and which city labels the
// painter places.
#include "CityLabels.h"
#include "TileStyle.h"
#include "location/MapCamera.h"
#include "location/MapZoom.h"

#include <QDir>
#include <QImage>
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
// The tile at "zoom/x/y".
QImage tile(const QString &name)
{
    const QString path = QStringLiteral(TARNELO_TILE_DIRECTORY "/%1.png").arg(name);
    const QImage image(path);
    if (image.isNull())
        qFatal("cannot read %s", qPrintable(path));
    return image;
}

// How many pixels of a tile's row have the colour.
int pixelsOfColour(const QImage &image, int row, QRgb colour)
{
    int count = 0;
    for (int column = 0; column < image.width(); ++column)
        count += (image.pixel(column, row) & RGB_MASK) == (colour & RGB_MASK);
    return count;
}
} // namespace

class OfflineTilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesHaveTheirColour_data()
    {
        QTest::addColumn<QString>("tileName");
        QTest::addColumn<QPoint>("pixel");
        QTest::addColumn<QRgb>("colour");
        QTest::newRow("central Africa (22.5° E, 21.9° N)") << QStringLiteral("3/4/3") << QPoint(128, 128) << TileStyle::land;
        // Where the Baltic lands would be if north and south were swapped.
        QTest::newRow("the Southern Ocean (22.5° E, 55.8° S)") << QStringLiteral("3/4/5") << QPoint(128, 128) << TileStyle::water;
        // A hole in the land, kept as water.
        QTest::newRow("the Caspian Sea (50.5° E, 42° N)") << QStringLiteral("4/10/5") << QPoint(62, 240) << TileStyle::water;
    }

    void placesHaveTheirColour()
    {
        QFETCH(QString, tileName);
        QFETCH(QPoint, pixel);
        QFETCH(QRgb, colour);
        QCOMPARE(tile(tileName).pixel(pixel) & RGB_MASK, colour & RGB_MASK);
    }

    // A ring drawn with its jump across the antimeridian left in makes a
    // band round the whole world at the latitudes where it crosses: Fiji's,
    // over the open Pacific, and Chukotka's, over the Norwegian Sea.
    // Antarctica's ring goes round the pole; unless it is closed past the
    // map's edge, a band of water runs along the bottom of the map. (Where
    // the Ross Sea's shore lies past the map's edge, the data's water does.)
    void ringsAcrossTheAntimeridianOrRoundThePoleLeaveNoBand()
    {
        for (const QImage &image : { tile(QStringLiteral("3/1/4")), tile(QStringLiteral("3/4/1")) }) {
            for (int row = 0; row < image.height(); ++row)
                QVERIFY2(pixelsOfColour(image, row, TileStyle::water) > 0, qPrintable(QStringLiteral("row %1 has no water").arg(row)));
        }
        int land = 0;
        for (int x = 0; x < 4; ++x)
            land += pixelsOfColour(tile(QStringLiteral("2/%1/3").arg(x)), 255, TileStyle::land);
        QVERIFY2(land > 4 * 256 * 9 / 10, qPrintable(QStringLiteral("%1 of %2 pixels are land").arg(land).arg(4 * 256)));
    }

    void labelsGoToCapitalsFirstAndNeverOverlap()
    {
        // At level 6 the world is 16,384 pixels wide: the big city is 20
        // pixels east of the capital, under the capital's name.
        const QVector<MapPlace> places { { QStringLiteral("Crowding"), QPointF(0.5 + 20.0 / 16384, 0.5), 5000000, false },
                                         { QStringLiteral("Capital"), QPointF(0.5, 0.5), 100000, true },
                                         { QStringLiteral("Far"), QPointF(0.25, 0.25), 2000000, false },
                                         { QStringLiteral("Smaller"), QPointF(0.75, 0.75), 300000, false } };
        const auto labelled = [&places](int zoom) {
            QStringList names;
            for (const CityLabel &label : placeCityLabels(places, zoom))
                names.append(label.name);
            names.sort();
            return names;
        };
        QCOMPARE(labelled(2), QStringList());
        QCOMPARE(labelled(3), QStringList { QStringLiteral("Capital") });
        QCOMPARE(labelled(5), (QStringList { QStringLiteral("Capital"), QStringLiteral("Far") }));
        QCOMPARE(labelled(6), (QStringList { QStringLiteral("Capital"), QStringLiteral("Far"), QStringLiteral("Smaller") }));
    }

    void theTighterSpanDecidesAndNeverBelowTheWholeWorld()
    {
        // A phone held upright: the width is the short side.
        QVERIFY(qFuzzyCompare(zoomLevelShowing(region(-1.2864, 0.05), QSizeF(390, 700)), longitudeFit(390, 0.05)));
        // At 60° a degree of latitude is drawn twice as tall: one zoom level less to fit it.
        QVERIFY(std::abs(zoomLevelShowing(region(60, 0.05), QSizeF(400, 400)) - (longitudeFit(400, 0.05) - 1)) < 1e-3);
        // A wide, low view: the height decides.
        QVERIFY(zoomLevelShowing(region(0, 0.05), QSizeF(1000, 200)) < longitudeFit(1000, 0.05) - 2);
        QCOMPARE(zoomLevelShowing(region(0, 0.05), QSizeF(390, 0)), 0.0);
        // Near a pole the span is measured up to the Mercator map's edge.
        QVERIFY(std::isfinite(zoomLevelShowing(region(89.99, 0.05), QSizeF(390, 700))));
    }

    void shippedTilesBoundTheZoomToTheirDeepestLevel()
    {
        QTemporaryDir tiles;
        QCOMPARE(deepestTileLevel(tiles.path()), -1);
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

QTEST_MAIN(OfflineTilesTest)
#include "tst_offlinetiles.moc"
