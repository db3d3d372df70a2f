// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/AirSimulation.h"
#include "server/AqiScale.h"
#include "server/EpaIndex.h"
#include "server/OpenMeteoReadings.h"
#include "server/PollenLevel.h"

#include <QTest>

Q_DECLARE_METATYPE(Pollutants)
Q_DECLARE_METATYPE(Exposure)

namespace
{
constexpr std::time_t newYear2026 = 1767225600; // 2026-01-01 00:00 UTC

// A record with one value set.
template<typename Record, typename Value> Record with(Value Record::*member, double value)
{
    Record record;
    record.*member = value;
    return record;
}
} // namespace

class AirScaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Hand-computed from the EPA's 2024 breakpoints: I = (Ihi - Ilo) / (BPhi - BPlo) * (C - BPlo) + Ilo
    // on the truncated concentration; gases at 25 °C (1 ppb NO2 = 1.88 µg/m³, O3 1.96, SO2 2.62, CO 1.15).
    void usEpaIndex_data()
    {
        QTest::addColumn<Exposure>("exposure");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("category");
        QTest::newRow("pm25 9.09 truncates to 9.0") << with(&Exposure::pm25Day, 9.09) << 50 << 1;
        QTest::newRow("pm25 9.1") << with(&Exposure::pm25Day, 9.1) << 51 << 2;
        QTest::newRow("pm25 40.0: 49 / 19.9 * 4.5 + 101") << with(&Exposure::pm25Day, 40.0) << 112 << 3;
        QTest::newRow("pm25 400, beyond the table") << with(&Exposure::pm25Day, 400.0) << 649 << 6;
        QTest::newRow("pm10 100: 49 / 99 * 45 + 51") << with(&Exposure::pm10Day, 100.0) << 73 << 2;
        QTest::newRow("o3 8 h 0.071 ppm") << with(&Exposure::o3EightHours, 139.5) << 101 << 3;
        Exposure ozone = with(&Exposure::o3EightHours, 400); // 0.203 ppm: past the 8-hour table
        ozone.o3Hour = 400;
        QTest::newRow("o3 over 0.200 ppm in 8 h: the hour decides") << ozone << 199 << 4;
        QTest::newRow("o3 1 h 0.410 ppm") << with(&Exposure::o3Hour, 805) << 306 << 6;
        QTest::newRow("o3 1 h below 0.125 ppm counts for nothing") << with(&Exposure::o3Hour, 200) << -1 << -1;
        QTest::newRow("co 4.45 ppm truncates to 4.4") << with(&Exposure::coEightHours, 5099) << 50 << 1;
        QTest::newRow("no2 106 ppb") << with(&Exposure::no2Hour, 200) << 102 << 3;
        QTest::newRow("so2 38 ppb") << with(&Exposure::so2Hour, 100) << 54 << 2;
        Exposure sulphur = with(&Exposure::so2Hour, 900); // 343 ppb: past the 1-hour table
        sulphur.so2Day = 1700; // 648 ppb
        QTest::newRow("so2 over 304 ppb in 1 h: the day decides") << sulphur << 322 << 6;
        sulphur.so2Day = 400; // 152 ppb
        QTest::newRow("so2 over 304 ppb in 1 h, a cleaner day") << sulphur << 200 << 4;
        Exposure mixed = with(&Exposure::pm25Day, 20); // 71
        mixed.no2Hour = 700; // 371 ppb
        QTest::newRow("the worst pollutant decides") << mixed << 153 << 4;
        QTest::newRow("no pollutant") << Exposure() << -1 << -1;
    }

    void usEpaIndex()
    {
        QFETCH(Exposure, exposure);
        QFETCH(int, value);
        QFETCH(int, category);
        const std::optional<AirIndex> index = ::usEpaIndex(exposure);
        QCOMPARE(index ? index->value : -1, value);
        QCOMPARE(index ? index->category : -1, category);
    }

    // A day's mean is taken over the hours that have a value, and only when
    // three quarters of them do: 18 of 24 hours at PM2.5 40.0 average 40.0
    // (category 3); with 17 there is no day's mean, and the clean rest decides.
    void dayMeanNeedsThreeQuartersOfItsHours()
    {
        const auto categoryWithHoursPresent = [](int present) {
            AirAnswer air;
            air.currentTime = 23 * 3600 + 600;
            for (const char *variable : { "pm2_5", "pm10", "ozone", "carbon_monoxide", "sulphur_dioxide", "nitrogen_dioxide", "ammonia" }) {
                air.current[variable] = 1.0;
                air.hourly[variable].assign(24, 1.0);
            }
            for (int i = 0; i < 24; ++i) {
                air.hours.push_back(i * 3600);
                air.hourly["pm2_5"][i] = i < 24 - present ? std::nullopt : std::optional<double>(40.0);
            }
            return currentAir(air).usEpaCategory;
        };
        QCOMPARE(categoryWithHoursPresent(18), 3);
        QCOMPARE(categoryWithHoursPresent(17), 1);
    }

    // Each type on its own scale: 12 grains of birch are low, 6 of grass moderate.
    void pollenLevel()
    {
        QVERIFY(!::pollenLevel({}));
        QCOMPARE(::pollenLevel({ 0.4, 0, {}, {}, {}, {} }).value_or("?"), std::string("None"));
        QCOMPARE(::pollenLevel({ {}, 12.0, {}, 6.0, {}, {} }).value_or("?"), std::string("Moderate"));
        QCOMPARE(::pollenLevel({ {}, 90.0, {}, {}, {}, {} }).value_or("?"), std::string("High"));
        QCOMPARE(::pollenLevel({ {}, {}, {}, {}, {}, 500.0 }).value_or("?"), std::string("Very high"));
    }

    void openWeatherIndex_data()
    {
        QTest::addColumn<Pollutants>("pollutants");
        QTest::addColumn<int>("index");
        QTest::newRow("so2 below 20") << with(&Pollutants::so2, 19.99) << 1;
        QTest::newRow("so2 20 is fair") << with(&Pollutants::so2, 20) << 2;
        QTest::newRow("no2 150 is poor") << with(&Pollutants::no2, 150) << 4;
        QTest::newRow("pm25 75 is very poor") << with(&Pollutants::pm25, 75) << 5;
        QTest::newRow("co 12399 is moderate") << with(&Pollutants::co, 12399) << 3;
    }

    void openWeatherIndex()
    {
        QFETCH(Pollutants, pollutants);
        QFETCH(int, index);
        QCOMPARE(::openWeatherIndex(pollutants), index);
    }

    void simulationRepeatsWithinCellAndHour()
    {
        const auto same = [](const Pollutants &a, const Pollutants &b) { return a.pm25 == b.pm25 && a.o3 == b.o3 && a.co == b.co && a.nh3 == b.nh3; };
        const Pollutants reference = simulatedAir(51.5, -0.12, newYear2026 + 600);
        QVERIFY(same(simulatedAir(51.504, -0.1249, newYear2026 + 3599), reference));
        QVERIFY(!same(simulatedAir(51.5, -0.12, newYear2026 + 3600), reference));
        QVERIFY(!same(simulatedAir(51.51, -0.12, newYear2026 + 600), reference));
    }
};

QTEST_GUILESS_MAIN(AirScaleTest)
#include "tst_air_scale.moc"
