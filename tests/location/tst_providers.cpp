// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/AfterFirstFrame.h"
#include "common/ScriptedResponder.h"
#include "common/StdoutCapture.h"
#include "location/GeocodingProvider.h"
#include "location/LocationManager.h"
#include "location/LoggingProvider.h"
#include "location/PositionSetting.h"

#include <QSignalSpy>
#include <QTest>

namespace
{
const QGeoCoordinate nairobi(-1.2864, 36.8172);
const QGeoCoordinate paris(48.8566, 2.3522);

QGeoPositionInfo at(const QGeoCoordinate &where)
{
    return QGeoPositionInfo(where, QDateTime::currentDateTimeUtc());
}

// The lines printed while `action` ran and the events it queued were handled.
template<typename Action> QStringList printedBy(Action &&action)
{
    StdoutCapture capture;
    action();
    QTest::qWait(20);
    return capture.takeLines();
}

const QString denied = QStringLiteral("Location authorization denied or restricted.");
} // namespace

// The providers driven by scripting their location service's callbacks.
class ProvidersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { qputenv("TARNELO_POSITION", "none"); }

    void positionSettingReadsEverySourceAndRefusesTheRest()
    {
        using Source = PositionSetting::Source;
        QCOMPARE(PositionSetting::parse(QStringLiteral("geoclue"))->source, Source::Geoclue);
        QCOMPARE(PositionSetting::parse(QStringLiteral("denied"))->source, Source::Denied);
        QCOMPARE(PositionSetting::parse(QStringLiteral("none"))->source, Source::None);
        QCOMPARE(PositionSetting::parse(QStringLiteral("nmea:/tmp/walk:1.nmea"))->nmeaFile, QStringLiteral("/tmp/walk:1.nmea"));
        QCOMPARE(PositionSetting::parse(QStringLiteral("fixed:-1.2921, 36.8219"))->fixedPosition, QGeoCoordinate(-1.2921, 36.8219));
        for (const char *text : { "fixed:91,0", "fixed:1,2,3", "fixed:a,b", "nmea:", "gps" })
            QVERIFY2(!PositionSetting::parse(QString::fromLatin1(text)), text);
        qputenv("TARNELO_POSITION", "fixed:north");
        QCOMPARE(PositionSetting::fromEnvironment().source, Source::Geoclue);
    }

    void loggingProviderPublishesTheNewestAndPrintsIt()
    {
        std::unique_ptr<LocationManagerFunss> provider;
        const QStringList refused = printedBy([&] { provider = std::make_unique<LocationManagerFunss>(); });
        QCOMPARE(refused, QStringList { denied });
        QCOMPARE(provider->authorizationStatus(), LocationService::AuthorizationStatus::Denied);

        LocationService *service = provider->locationManager();
        QCOMPARE(printedBy([&] { Q_EMIT service->locationsUpdated({}); }), QStringList());
        QVERIFY(!provider->currentLocation());

        const QStringList batch = printedBy([&] { Q_EMIT service->locationsUpdated({ at(paris), at(nairobi) }); });
        QCOMPARE(batch, QStringList { QStringLiteral("Latitude: -1.2864, Longitude: 36.8172") });
        QCOMPARE(provider->currentLocation()->coordinate(), nairobi);
        const QGeoCoordinate wholeDegrees(48, 2);
        QCOMPARE(printedBy([&] { Q_EMIT service->locationsUpdated({ at(wholeDegrees) }); }), QStringList { QStringLiteral("Latitude: 48.0, Longitude: 2.0") });

        QSignalSpy status(provider.get(), &LocationProvider::authorizationStatusChanged);
        QCOMPARE(printedBy([&] {
                     Q_EMIT service->authorizationChanged(LocationService::AuthorizationStatus::Restricted);
                     Q_EMIT service->authorizationChanged(LocationService::AuthorizationStatus::Denied);
                     Q_EMIT service->failedWithError(QStringLiteral("The position source failed."));
                 }),
                 (QStringList { denied, denied, QStringLiteral("Location error: The position source failed.") }));
        QCOMPARE(status.count(), 2);
        QCOMPARE(provider->currentLocation()->coordinate(), wholeDegrees);
    }

    // The map takes one fix per start, keeps its own span, and keeps the fix
    // through a failure.
    void mapProviderTakesOneFixPerStartAndKeepsItsSpan()
    {
        qputenv("TARNELO_POSITION", "fixed:48.8566,2.3522");
        LocationManager map;
        const CoordinateRegion before = map.region();
        QSignalSpy fixes(&map, &LocationManager::userLocationChanged);
        map.startUpdatingLocation();
        QVERIFY(fixes.wait());
        QCOMPARE(map.userLocation(), paris);
        QCOMPARE(map.region().latitudeDelta, before.latitudeDelta);
        QCOMPARE(map.region().longitudeDelta, before.longitudeDelta);
        QVERIFY(!map.locationManager()->isUpdatingLocation());
        QCOMPARE(printedBy([&] { Q_EMIT map.locationManager()->failedWithError(QStringLiteral("No fix.")); }),
                 QStringList { QStringLiteral("Failed to find user's location: No fix.") });
        QCOMPARE(fixes.count(), 1);
        QCOMPARE(map.userLocation(), paris);
        map.startUpdatingLocation();
        QVERIFY(fixes.wait());
    }

    // The newest of a batch is named; a failed lookup prints its line and
    // keeps the town shown.
    void geocodingProviderNamesTheTownOfTheNewest()
    {
        ScriptedResponder nominatim;
        qputenv("TARNELO_GEOCODER", "nominatim:" + nominatim.url().toUtf8());
        LocationManagerFunHD provider;
        QSignalSpy named(&provider, &GeocodingProvider::townNameChanged);
        nominatim.answer("/reverse", 200, R"({"lat":"48.8566","lon":"2.3522","display_name":"Paris","address":{"city":"Paris"}})");
        Q_EMIT provider.locationManager()->locationsUpdated({ at(nairobi), at(paris) });
        QVERIFY(named.wait());
        QCOMPARE(provider.townName(), QStringLiteral("Paris"));
        QVERIFY(nominatim.takeTargets().value(0).contains(QLatin1String("lat=48.8566")));

        nominatim.answer("/reverse", 503, "Service Unavailable");
        const QStringList failed = printedBy([&] {
            Q_EMIT provider.locationManager()->locationsUpdated({ at(paris) });
            (void)QTest::qWaitFor([&] { return !nominatim.takeTargets().isEmpty(); }, 5000);
            QTest::qWait(100);
        });
        QCOMPARE(failed.size(), 1);
        QVERIFY2(failed.first().startsWith(QLatin1String("Error during reverse geocoding: ")), qPrintable(failed.first()));
        QCOMPARE(provider.townName(), QStringLiteral("Paris"));
    }

    // A device's source waits for the app's first frame, a fixed position
    // does not; then an NMEA log replays in real time.
    void deviceSourcesWaitForTheFirstFrame()
    {
        qputenv("TARNELO_POSITION", "nmea:" TARNELO_DEMO_WALK);
        AfterFirstFrame::hold();
        LocationManagerFun held;
        QTest::qWait(50);
        QVERIFY(!held.authorizationStatus());
        {
            qputenv("TARNELO_POSITION", "fixed:48.8566,2.3522");
            LocationManagerFun fixed;
            QTRY_VERIFY(fixed.currentLocation());
        }

        QStringList lines;
        {
            StdoutCapture capture;
            AfterFirstFrame::release();
            (void)QTest::qWaitFor([&] { return (lines += capture.takeLines()).size() >= 2; }, 5000);
        }
        QCOMPARE(held.authorizationStatus(), LocationService::AuthorizationStatus::AuthorizedWhenInUse);
        // The walk starts at the convention centre, 1°17.3256' S.
        QVERIFY2(lines.size() >= 2 && lines.first().startsWith(QLatin1String("Latitude: -1.28876")), qPrintable(lines.join(QLatin1Char('\n'))));
    }
};

QTEST_GUILESS_MAIN(ProvidersTest)
#include "tst_providers.moc"
