// SPDX-License-Identifier: GPL-3.0-or-later
// The shipped map tiles as the build painted them, checked at places whose
// tiles and pixels were worked out by hand from the web-Mercator tiling; and
// which city labels the painter places.
#include "CityLabels.h"
#include "TileStyle.h"

#include <QImage>
#include <QTest>

namespace
{
QImage tile(int zoom, int x, int y)
{
    const QString path = QStringLiteral(TARNELO_TILE_DIRECTORY "/%1/%2/%3.png").arg(zoom).arg(x).arg(y);
    const QImage image(path);
    if (image.isNull())
        qFatal("cannot read %s", qPrintable(path));
    return image;
}

MapPlace place(const char *name, double x, double y, qint64 population, bool capital = false)
{
    return { QString::fromLatin1(name), QPointF(x, y), population, capital };
}
} // namespace

class OfflineTilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesHaveTheirColour_data()
    {
        QTest::addColumn<int>("zoom");
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("y");
        QTest::addColumn<QPoint>("pixel");
        QTest::addColumn<QRgb>("colour");
        QTest::newRow("central Africa (22.5° E, 21.9° N)") << 3 << 4 << 3 << QPoint(128, 128) << TileStyle::land;
        // Where the Baltic lands would be if north and south were swapped.
        QTest::newRow("the Southern Ocean (22.5° E, 55.8° S)") << 3 << 4 << 5 << QPoint(128, 128) << TileStyle::water;
        QTest::newRow("the middle of the Pacific (112.5° W, 21.9° S)") << 3 << 1 << 4 << QPoint(128, 128) << TileStyle::water;
        // A hole in the land, kept as water.
        QTest::newRow("the Caspian Sea (50.5° E, 42° N)") << 4 << 10 << 5 << QPoint(62, 240) << TileStyle::water;
    }

    void placesHaveTheirColour()
    {
        QFETCH(int, zoom);
        QFETCH(int, x);
        QFETCH(int, y);
        QFETCH(QPoint, pixel);
        QFETCH(QRgb, colour);
        QCOMPARE(tile(zoom, x, y).pixel(pixel) & RGB_MASK, colour & RGB_MASK);
    }

    // A ring drawn with its jump across the antimeridian left in makes a
    // band round the whole world at the latitudes where it crosses.
    void ringsAcrossTheAntimeridianLeaveNoBand_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("y");
        QTest::newRow("Fiji's latitude, open Pacific (135° W to 90° W)") << 1 << 4;
        QTest::newRow("Chukotka's latitudes, Norwegian Sea and Scandinavia") << 4 << 1;
    }

    void ringsAcrossTheAntimeridianLeaveNoBand()
    {
        QFETCH(int, x);
        QFETCH(int, y);
        const QImage image = tile(3, x, y);
        for (int row = 0; row < image.height(); ++row) {
            int water = 0;
            for (int column = 0; column < image.width(); ++column)
                water += (image.pixel(column, row) & RGB_MASK) == (TileStyle::water & RGB_MASK);
            QVERIFY2(water > 0, qPrintable(QStringLiteral("row %1 has no water").arg(row)));
        }
    }

    // Antarctica's ring goes round the pole; unless it is closed past the
    // map's edge, a band of water runs along the bottom of the map. (Where
    // the Ross Sea's shore lies past the map's edge, the data's water does.)
    void antarcticaReachesTheSouthernEdge()
    {
        int land = 0;
        int pixels = 0;
        for (int x = 0; x < 4; ++x) {
            const QImage image = tile(2, x, 3);
            for (int column = 0; column < image.width(); ++column, ++pixels)
                land += (image.pixel(column, image.height() - 1) & RGB_MASK) == (TileStyle::land & RGB_MASK);
        }
        QVERIFY2(land > pixels * 9 / 10, qPrintable(QStringLiteral("%1 of %2 pixels are land").arg(land).arg(pixels)));
    }

    void labelsGoToCapitalsFirstAndNeverOverlap()
    {
        // At level 6 the world is 16,384 pixels wide: the big city is 20
        // pixels east of the capital, under the capital's name.
        const QVector<MapPlace> places { place("Crowding", 0.5 + 20.0 / 16384, 0.5, 5000000), place("Capital", 0.5, 0.5, 100000, true),
                                         place("Far", 0.25, 0.25, 2000000), place("Smaller", 0.75, 0.75, 300000) };
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
};

QTEST_MAIN(OfflineTilesTest)
#include "tst_offlinetiles.moc"
