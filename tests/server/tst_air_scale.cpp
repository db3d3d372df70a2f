// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/AirSimulation.h"
#include "server/AqiScale.h"
#include "server/WeatherSimulation.h"

#include <QTest>

#include <map>

Q_DECLARE_METATYPE(Pollutants)

namespace
{
constexpr std::time_t newYear2026 = 1767225600; // 2026-01-01 00:00 UTC
constexpr std::time_t day = 24 * 3600;

Pollutants only(double Pollutants::*member, double value)
{
    Pollutants p;
    p.*member = value;
    return p;
}
} // namespace

class AirScaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void usEpaCategory_data()
    {
        QTest::addColumn<Pollutants>("pollutants");
        QTest::addColumn<int>("category");
        QTest::newRow("clean air") << Pollutants() << 1;
        // PM2.5 as revised in 2024, read at one decimal.
        QTest::newRow("pm25 9.0") << only(&Pollutants::pm25, 9.0) << 1;
        QTest::newRow("pm25 9.09 truncates") << only(&Pollutants::pm25, 9.09) << 1;
        QTest::newRow("pm25 9.1") << only(&Pollutants::pm25, 9.1) << 2;
        QTest::newRow("pm25 35.5") << only(&Pollutants::pm25, 35.5) << 3;
        QTest::newRow("pm25 125.4") << only(&Pollutants::pm25, 125.4) << 4;
        QTest::newRow("pm25 225.5") << only(&Pollutants::pm25, 225.5) << 6;
        QTest::newRow("pm10 54") << only(&Pollutants::pm10, 54.9) << 1;
        QTest::newRow("pm10 355") << only(&Pollutants::pm10, 355) << 5;
        // Gases convert at 25 °C: 1 ppb NO2 = 1.88 µg/m³, O3 1.96, SO2 2.62, CO 1.15.
        QTest::newRow("o3 0.070 ppm") << only(&Pollutants::o3, 137.4) << 2;
        QTest::newRow("o3 0.071 ppm") << only(&Pollutants::o3, 139.5) << 3;
        QTest::newRow("o3 0.41 ppm") << only(&Pollutants::o3, 805) << 6;
        QTest::newRow("no2 106 ppb") << only(&Pollutants::no2, 200) << 3;
        QTest::newRow("so2 38 ppb") << only(&Pollutants::so2, 100) << 2;
        QTest::newRow("co 4.4 ppm") << only(&Pollutants::co, 5099) << 1;
        QTest::newRow("co 10.5 ppm") << only(&Pollutants::co, 12000) << 3;
        Pollutants mixed = only(&Pollutants::pm25, 20);
        mixed.no2 = 700; // 372 ppb
        QTest::newRow("worst pollutant decides") << mixed << 4;
    }

    void usEpaCategory()
    {
        QFETCH(Pollutants, pollutants);
        QFETCH(int, category);
        QCOMPARE(::usEpaCategory(pollutants), category);
    }

    void openWeatherIndex_data()
    {
        QTest::addColumn<Pollutants>("pollutants");
        QTest::addColumn<int>("index");
        QTest::newRow("clean air") << Pollutants() << 1;
        QTest::newRow("so2 below 20") << only(&Pollutants::so2, 19.99) << 1;
        QTest::newRow("so2 20 is fair") << only(&Pollutants::so2, 20) << 2;
        QTest::newRow("no2 150 is poor") << only(&Pollutants::no2, 150) << 4;
        QTest::newRow("pm25 75 is very poor") << only(&Pollutants::pm25, 75) << 5;
        QTest::newRow("co 12399 is moderate") << only(&Pollutants::co, 12399) << 3;
    }

    void openWeatherIndex()
    {
        QFETCH(Pollutants, pollutants);
        QFETCH(int, index);
        QCOMPARE(::openWeatherIndex(pollutants), index);
    }

    // Somewhere, sometime, every category; mostly the lower three.
    void simulationSpansTheScale()
    {
        std::map<int, int> counts;
        int samples = 0;
        for (std::time_t when = newYear2026; when < newYear2026 + 365 * day; when += 61 * day + 5 * 3600)
            for (double lat = -60; lat <= 70; lat += 2.5)
                for (double lon = -180; lon < 180; lon += 2.5, ++samples)
                    ++counts[::usEpaCategory(simulatedAir(lat, lon, when))];
        for (std::time_t when = newYear2026; when < newYear2026 + 2 * day; when += 3600)
            for (double lat = 27.6; lat < 29.6; lat += 0.1)
                ++counts[::usEpaCategory(simulatedAir(lat, 77.21, when))];
        QCOMPARE(counts.size(), size_t(6));
        QCOMPARE(counts.begin()->first, 1);
        QCOMPARE(counts.rbegin()->first, 6);
        QVERIFY2(counts[1] + counts[2] + counts[3] > samples * 0.9, qPrintable(QString::number(counts[1] + counts[2] + counts[3])));
    }

    void simulationRepeatsWithinCellAndHour()
    {
        const auto same = [](const Pollutants &a, const Pollutants &b) { return a.pm25 == b.pm25 && a.o3 == b.o3 && a.co == b.co && a.nh3 == b.nh3; };
        const Pollutants reference = simulatedAir(51.5, -0.12, newYear2026 + 600);
        QVERIFY(same(simulatedAir(51.504, -0.1249, newYear2026 + 3599), reference));
        QVERIFY(!same(simulatedAir(51.5, -0.12, newYear2026 + 3600), reference));
        QVERIFY(!same(simulatedAir(51.51, -0.12, newYear2026 + 600), reference));
    }

    // Warmer towards the equator and in the local summer.
    void weatherFollowsLatitudeAndSeason()
    {
        const auto kelvin = [](double lat, std::time_t when) { return simulatedWeather(lat, 0, when + 12 * 3600).kelvin; };
        const std::time_t july = newYear2026 + 190 * day;
        QVERIFY(kelvin(0, newYear2026) > kelvin(50, newYear2026) + 10);
        QVERIFY(kelvin(50, july) > kelvin(50, newYear2026) + 8);
        QVERIFY(kelvin(-40, newYear2026) > kelvin(-40, july) + 6);
        QVERIFY(simulatedWeather(50, 0, july + 12 * 3600).uvIndex > simulatedWeather(50, 0, july).uvIndex);
    }
};

QTEST_GUILESS_MAIN(AirScaleTest)
#include "tst_air_scale.moc"
