// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/AfterFirstFrame.h"
#include "common/ScriptedResponder.h"
#include "common/StdoutCapture.h"
#include "location/GeocodingProvider.h"
#include "location/LocationManager.h"
#include "location/LoggingProvider.h"
#include "location/PositionSetting.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace
{
QGeoPositionInfo at(double latitude, double longitude)
{
    return QGeoPositionInfo(QGeoCoordinate(latitude, longitude), QDateTime::currentDateTimeUtc());
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

std::string reverseAnswer(const char *address)
{
    return std::string(R"({"lat":"48.8566","lon":"2.3522","display_name":"Somewhere","address":)") + address + "}";
}
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
        const auto nmea = PositionSetting::parse(QStringLiteral("nmea:/tmp/walk:1.nmea"));
        QCOMPARE(nmea->source, Source::Nmea);
        QCOMPARE(nmea->nmeaFile, QStringLiteral("/tmp/walk:1.nmea"));
        const auto fixed = PositionSetting::parse(QStringLiteral("fixed:-1.2921, 36.8219"));
        QCOMPARE(fixed->source, Source::Fixed);
        QCOMPARE(fixed->fixedPosition, QGeoCoordinate(-1.2921, 36.8219));
        for (const char *text : { "fixed:91,0", "fixed:1", "fixed:1,2,3", "fixed:a,b", "fixed:1;2", "nmea:", "gps", "" })
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
        QSignalSpy published(provider.get(), &LocationProvider::currentLocationChanged);
        QCOMPARE(printedBy([&] { Q_EMIT service->locationsUpdated({}); }), QStringList());
        QCOMPARE(published.count(), 0);
        QVERIFY(!provider->currentLocation());

        const QStringList batch = printedBy([&] { Q_EMIT service->locationsUpdated({ at(10, 20), at(-1.2864, 36.8172) }); });
        QCOMPARE(batch, QStringList { QStringLiteral("Latitude: -1.2864, Longitude: 36.8172") });
        QCOMPARE(provider->currentLocation()->coordinate(), QGeoCoordinate(-1.2864, 36.8172));
        // Every assignment notifies, also of the same place.
        printedBy([&] { Q_EMIT service->locationsUpdated({ at(-1.2864, 36.8172) }); });
        QCOMPARE(published.count(), 2);
        QCOMPARE(printedBy([&] { Q_EMIT service->locationsUpdated({ at(48, 2) }); }), QStringList { QStringLiteral("Latitude: 48.0, Longitude: 2.0") });

        QSignalSpy status(provider.get(), &LocationProvider::authorizationStatusChanged);
        QCOMPARE(printedBy([&] {
                     Q_EMIT service->authorizationChanged(LocationService::AuthorizationStatus::Restricted);
                     Q_EMIT service->authorizationChanged(LocationService::AuthorizationStatus::Denied);
                     Q_EMIT service->failedWithError(QStringLiteral("The position source failed."));
                 }),
                 (QStringList { denied, denied, QStringLiteral("Location error: The position source failed.") }));
        QCOMPARE(status.count(), 2);
        QCOMPARE(provider->currentLocation()->coordinate(), QGeoCoordinate(48, 2));
    }

    void mapProviderTakesOneFixPerStartAndKeepsItsSpan()
    {
        LocationManager map;
        const CoordinateRegion before = map.region();
        QVERIFY(!map.userLocation().isValid());
        Q_EMIT map.locationManager()->locationsUpdated({ at(-1.2864, 36.8172), at(10, 20) });
        QCOMPARE(map.userLocation(), QGeoCoordinate(-1.2864, 36.8172));
        QCOMPARE(map.region().center, QGeoCoordinate(-1.2864, 36.8172));
        QCOMPARE(map.region().latitudeDelta, before.latitudeDelta);
        QCOMPARE(map.region().longitudeDelta, before.longitudeDelta);
        QCOMPARE(printedBy([&] { Q_EMIT map.locationManager()->failedWithError(QStringLiteral("No fix.")); }),
                 QStringList { QStringLiteral("Failed to find user's location: No fix.") });
        QCOMPARE(map.userLocation(), QGeoCoordinate(-1.2864, 36.8172));
    }

    void mapProviderStopsAfterARealFix()
    {
        qputenv("TARNELO_POSITION", "fixed:48.8566,2.3522");
        LocationManager map;
        QSignalSpy fixes(&map, &LocationManager::userLocationChanged);
        map.startUpdatingLocation();
        QVERIFY(fixes.wait());
        QCOMPARE(map.userLocation(), QGeoCoordinate(48.8566, 2.3522));
        QVERIFY(!map.locationManager()->isUpdatingLocation());
        QTest::qWait(50);
        QCOMPARE(fixes.count(), 1);
        map.startUpdatingLocation();
        QVERIFY(fixes.wait());
    }

    void geocodingProviderNamesTheTownOfTheNewest()
    {
        ScriptedResponder nominatim;
        qputenv("TARNELO_GEOCODER", "nominatim:" + nominatim.url().toUtf8());
        std::unique_ptr<LocationManagerFunHD> provider;
        QCOMPARE(printedBy([&] { provider = std::make_unique<LocationManagerFunHD>(); }), QStringList());
        QCOMPARE(provider->authorizationStatus(), LocationService::AuthorizationStatus::Denied);
        LocationService *service = provider->locationManager();
        QSignalSpy named(provider.get(), &GeocodingProvider::townNameChanged);

        nominatim.answer("/reverse", 200, reverseAnswer(R"({"city":"Paris","country":"France"})"));
        Q_EMIT service->locationsUpdated({ at(-1.2864, 36.8172), at(48.8566, 2.3522) });
        QVERIFY(named.wait());
        QCOMPARE(provider->townName(), QStringLiteral("Paris"));
        QCOMPARE(provider->currentLocation()->coordinate(), QGeoCoordinate(48.8566, 2.3522));
        QVERIFY(nominatim.takeTargets().value(0).contains(QLatin1String("lat=48.8566")));

        nominatim.answer("/reverse", 503, "Service Unavailable");
        const QStringList failed = printedBy([&] {
            Q_EMIT service->locationsUpdated({ at(48.8566, 2.3522) });
            (void)QTest::qWaitFor([&] { return !nominatim.takeTargets().isEmpty(); }, 5000);
            QTest::qWait(100);
        });
        QCOMPARE(failed.size(), 1);
        QVERIFY2(failed.first().startsWith(QLatin1String("Error during reverse geocoding: ")), qPrintable(failed.first()));
        QCOMPARE(provider->townName(), QStringLiteral("Paris"));
        QCOMPARE(printedBy([&] { Q_EMIT service->failedWithError(QStringLiteral("No fix.")); }), QStringList());

        nominatim.answer("/reverse", 200, reverseAnswer(R"({"country":"France"})"));
        Q_EMIT service->locationsUpdated({ at(48.8566, 2.3522) });
        QVERIFY(named.wait());
        QVERIFY(provider->townName().isNull());
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
        QVERIFY2(lines.size() >= 2, qPrintable(lines.join(QLatin1Char('\n'))));
        // The walk starts at the convention centre: 1°17.3256' S, 36°49.3950' E.
        const QStringList parts = lines.first().split(QRegularExpression(QStringLiteral("[:,] ")));
        QCOMPARE(parts.value(0), QStringLiteral("Latitude"));
        QVERIFY(qAbs(parts.value(1).toDouble() + 1.28876) < 1e-6);
        QVERIFY(qAbs(parts.value(3).toDouble() - 36.82325) < 1e-6);
    }
};

QTEST_GUILESS_MAIN(ProvidersTest)
#include "tst_providers.moc"
