// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/PositionSetting.h"

#include <QTest>

class PositionSettingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsEverySource()
    {
        using Source = PositionSetting::Source;
        QCOMPARE(PositionSetting::parse(QStringLiteral("geoclue"))->source, Source::Geoclue);
        QCOMPARE(PositionSetting::parse(QStringLiteral("denied"))->source, Source::Denied);
        QCOMPARE(PositionSetting::parse(QStringLiteral("none"))->source, Source::None);
        const auto nmea = PositionSetting::parse(QStringLiteral("nmea:/tmp/walk:1.nmea"));
        QCOMPARE(nmea->source, Source::Nmea);
        QCOMPARE(nmea->nmeaFile, QStringLiteral("/tmp/walk:1.nmea"));
        const auto fixed = PositionSetting::parse(QStringLiteral("fixed:-1.2921, 36.8219"));
        QCOMPARE(fixed->source, Source::Fixed);
        QCOMPARE(fixed->fixedPosition, QGeoCoordinate(-1.2921, 36.8219));
    }

    void refusesWhatItCannotUse()
    {
        for (const char *text : { "fixed:91,0", "fixed:1", "fixed:1,2,3", "fixed:a,b", "fixed:1;2", "nmea:", "gps", "" })
            QVERIFY2(!PositionSetting::parse(QString::fromLatin1(text)), text);
        qputenv("TARNELO_POSITION", "fixed:north");
        QCOMPARE(PositionSetting::fromEnvironment().source, PositionSetting::Source::Geoclue);
    }
};

QTEST_GUILESS_MAIN(PositionSettingTest)
#include "tst_positionsetting.moc"
