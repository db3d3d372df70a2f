// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/ScriptedResponder.h"
#include "location/GazetteerFile.h"
#include "location/GeoBounds.h"
#include "location/Geocoder.h"
#include "location/PlaceNameFolding.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryFile>
#include <QTest>
#include <QThread>
#include <QUrlQuery>

#include <sqlite3.h>

#include <algorithm>
#include <memory>

namespace
{
const QString unavailable = QStringLiteral("The offline gazetteer is not available");

const std::string nairobiSearch
    = R"([{"lat":"-1.2832533","lon":"36.8172449","display_name":"Kenyatta Avenue, Nairobi Central, Nairobi, Nairobi County, 00100, Kenya",
"address":{"road":"Kenyatta Avenue","suburb":"Nairobi Central","city":"Nairobi","state":"Nairobi County","postcode":"00100","country":"Kenya","country_code":"ke"}},
{"lat":"-1.3","lon":"36.8","display_name":"Nairobi, Kenya","address":{"city":"Nairobi","country":"Kenya","country_code":"ke"}}])";
const std::string parisReverse = R"({"lat":"48.8566","lon":"2.3522","display_name":"Rue de Rivoli, Quartier Saint-Merri, Paris, Île-de-France, 75004, France",
"address":{"road":"Rue de Rivoli","suburb":"Paris 4e","city":"Paris","state":"Île-de-France","postcode":"75004","country":"France","country_code":"fr"}})";

struct Outcome {
    bool completed = false;
    bool completedInsideCall = false;
    QThread *thread = nullptr;
    QList<Placemark> placemarks;
    QString error;

    Geocoder::Completion recorder()
    {
        return [this](const QList<Placemark> &found, const QString &why) {
            completed = true;
            thread = QThread::currentThread();
            placemarks = found;
            error = why;
        };
    }
};

// An unknown part reads differently from every text a test expects.
QString known(const std::optional<QString> &text)
{
    return text.value_or(QStringLiteral("(unknown)"));
}

// The geocoder TARNELO_GEOCODER and TARNELO_GAZETTEER choose when it is made.
std::unique_ptr<Geocoder> makeGeocoder(const QByteArray &backend, const QByteArray &gazetteer = TARNELO_GAZETTEER_FILE)
{
    qputenv("TARNELO_GEOCODER", backend);
    qputenv("TARNELO_GAZETTEER", gazetteer);
    return std::make_unique<Geocoder>();
}

template<typename Call> Outcome await(Call call)
{
    Outcome outcome;
    call(outcome.recorder());
    outcome.completedInsideCall = outcome.completed;
    // Whether it completed is the outcome's to tell.
    static_cast<void>(QTest::qWaitFor([&outcome] { return outcome.completed; }, 5000));
    return outcome;
}

Outcome reverse(Geocoder &geocoder, const QGeoCoordinate &point)
{
    return await([&](Geocoder::Completion done) { geocoder.reverseGeocodeLocation(point, std::move(done)); });
}

Outcome search(Geocoder &geocoder, const QString &address)
{
    return await([&](Geocoder::Completion done) { geocoder.geocodeAddressString(address, std::move(done)); });
}

// The plain nearest place to a point, by brute force over the whole file.
QString nearestPlaceName(const QGeoCoordinate &point)
{
    sqlite3 *db = nullptr;
    sqlite3_open_v2(TARNELO_GAZETTEER_FILE, &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt *places = nullptr;
    sqlite3_prepare_v2(db, "SELECT name, latitude, longitude FROM places", -1, &places, nullptr);
    QString nearest;
    double nearestDistance = qInf();
    while (sqlite3_step(places) == SQLITE_ROW) {
        const double distance = point.distanceTo(QGeoCoordinate(sqlite3_column_double(places, 1), sqlite3_column_double(places, 2)));
        if (distance < nearestDistance) {
            nearestDistance = distance;
            nearest = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(places, 0)));
        }
    }
    sqlite3_finalize(places);
    sqlite3_close(db);
    return nearest;
}
} // namespace

class GeocoderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foldsNamesForComparison()
    {
        QCOMPARE(foldPlaceName(QStringLiteral("NAÏROBI")), QStringLiteral("nairobi"));
        QCOMPARE(foldPlaceName(QStringLiteral("São Paulo")), QStringLiteral("sao paulo"));
        QCOMPARE(foldPlaceName(QStringLiteral("  Saint-Étienne ")), QStringLiteral("saint etienne"));
        QCOMPARE(foldPlaceName(QStringLiteral("Den   Haag")), QStringLiteral("den haag"));
        QCOMPARE(foldPlaceName(QStringLiteral("Ｔｏｋｙｏ")), QStringLiteral("tokyo"));
    }

    void searchBoxesHoldTheWholeCircle_data()
    {
        QTest::addColumn<QGeoCoordinate>("centre");
        QTest::addColumn<double>("radius");
        QTest::newRow("equator") << QGeoCoordinate(0, 10) << 50e3;
        QTest::newRow("high latitude") << QGeoCoordinate(69.6, 18.9) << 640e3;
        QTest::newRow("across the antimeridian, east") << QGeoCoordinate(-16.8, 179.9) << 40e3;
        QTest::newRow("across the antimeridian, west") << QGeoCoordinate(65.0, -179.5) << 160e3;
        QTest::newRow("over the pole") << QGeoCoordinate(89.5, 0) << 160e3;
    }

    void searchBoxesHoldTheWholeCircle()
    {
        QFETCH(QGeoCoordinate, centre);
        QFETCH(double, radius);
        const QVector<GeoBox> boxes = boxesAround(centre, radius);
        const auto holds = [](const GeoBox &box, const QGeoCoordinate &point) {
            return point.latitude() >= box.south && point.latitude() <= box.north && point.longitude() >= box.west && point.longitude() <= box.east;
        };
        QVERIFY(holds(boxes.constFirst(), centre));
        for (int azimuth = 0; azimuth < 360; azimuth += 5) {
            const QGeoCoordinate edge = centre.atDistanceAndAzimuth(radius * 0.999, azimuth);
            QVERIFY2(std::any_of(boxes.cbegin(), boxes.cend(), [&](const GeoBox &box) { return holds(box, edge); }), qPrintable(edge.toString()));
        }
    }

    void namesPointsAfterThePlaceTheyAreIn_data()
    {
        QTest::addColumn<QGeoCoordinate>("point");
        QTest::addColumn<QString>("locality");
        QTest::addColumn<QString>("region");
        QTest::addColumn<QString>("country");
        QTest::newRow("central Nairobi") << QGeoCoordinate(-1.2864, 36.8172) << QStringLiteral("Nairobi") << QStringLiteral("Nairobi County")
                                         << QStringLiteral("Kenya");
        QTest::newRow("central Paris") << QGeoCoordinate(48.8566, 2.3522) << QStringLiteral("Paris") << QStringLiteral("Île-de-France")
                                       << QStringLiteral("France");
        // Nearer Saint-Ouen's centre than Paris's, but well inside Paris.
        QTest::newRow("Montmartre") << QGeoCoordinate(48.8867, 2.3431) << QStringLiteral("Paris") << QStringLiteral("Île-de-France")
                                    << QStringLiteral("France");
        // A town beside a city keeps its own name.
        QTest::newRow("Neuilly-sur-Seine") << QGeoCoordinate(48.8846, 2.2697) << QStringLiteral("Neuilly-sur-Seine") << QStringLiteral("Île-de-France")
                                           << QStringLiteral("France");
    }

    void namesPointsAfterThePlaceTheyAreIn()
    {
        QFETCH(QGeoCoordinate, point);
        const auto geocoder = makeGeocoder("offline");
        const Outcome outcome = reverse(*geocoder, point);
        QVERIFY(outcome.completed);
        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.placemarks.size(), 1);
        const Placemark &place = outcome.placemarks.constFirst();
        QTEST(known(place.locality), "locality");
        QCOMPARE(known(place.name), known(place.locality));
        QTEST(known(place.administrativeArea), "region");
        QTEST(known(place.country), "country");
        QCOMPARE(place.location.value_or(QGeoCoordinate()), point);
        QVERIFY(!place.thoroughfare && !place.postalCode);
    }

    void namesPointsFarOutAtSeaAfterTheNearestPlace()
    {
        const auto geocoder = makeGeocoder({});
        for (const QGeoCoordinate &point : { QGeoCoordinate(0, -30), QGeoCoordinate(-48.9, -123.4), QGeoCoordinate(-10, 179.9) }) {
            const Outcome outcome = reverse(*geocoder, point);
            QCOMPARE(outcome.placemarks.size(), 1);
            QCOMPARE(known(outcome.placemarks.constFirst().locality), nearestPlaceName(point));
        }
    }

    void findsPlacesByName_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("region");
        QTest::addColumn<QString>("country");
        QTest::newRow("upper case with a diaeresis") << QStringLiteral("NAÏROBI") << QStringLiteral("Nairobi") << QStringLiteral("Nairobi County")
                                                     << QStringLiteral("Kenya");
        QTest::newRow("address") << QStringLiteral("Nairobi, Kenya") << QStringLiteral("Nairobi") << QStringLiteral("Nairobi County")
                                 << QStringLiteral("Kenya");
        QTest::newRow("prefix") << QStringLiteral("Nairob") << QStringLiteral("Nairobi") << QStringLiteral("Nairobi County") << QStringLiteral("Kenya");
        QTest::newRow("without accents") << QStringLiteral("Sao Paulo") << QStringLiteral("São Paulo") << QStringLiteral("São Paulo")
                                         << QStringLiteral("Brazil");
        QTest::newRow("biggest of a name") << QStringLiteral("Paris") << QStringLiteral("Paris") << QStringLiteral("Île-de-France") << QStringLiteral("France");
        QTest::newRow("region named") << QStringLiteral("Paris, Texas") << QStringLiteral("Paris") << QStringLiteral("Texas")
                                      << QStringLiteral("United States");
        QTest::newRow("country code") << QStringLiteral("paris, ca") << QStringLiteral("Paris") << QStringLiteral("Ontario") << QStringLiteral("Canada");
        // Manila and Manaus are bigger, but only Man is called that.
        QTest::newRow("exact before prefix") << QStringLiteral("Man") << QStringLiteral("Man") << QStringLiteral("Montagnes") << QStringLiteral("Ivory Coast");
    }

    void findsPlacesByName()
    {
        QFETCH(QString, address);
        const auto geocoder = makeGeocoder("offline");
        const Outcome outcome = search(*geocoder, address);
        QCOMPARE(outcome.error, QString());
        QVERIFY(!outcome.placemarks.isEmpty());
        QVERIFY(outcome.placemarks.size() <= 10);
        const Placemark &first = outcome.placemarks.constFirst();
        QTEST(known(first.name), "name");
        QTEST(known(first.administrativeArea), "region");
        QTEST(known(first.country), "country");
        QVERIFY(first.location && first.location->isValid());
    }

    void placesFoundAreWhereThePlaceIs()
    {
        const auto geocoder = makeGeocoder("offline");
        const Outcome outcome = search(*geocoder, QStringLiteral("Man"));
        QCOMPARE(outcome.placemarks.size(), 10);
        QVERIFY(outcome.placemarks.at(0).location->distanceTo(QGeoCoordinate(7.4125, -7.5538)) < 1000);
        // After the exact name, the names it begins, most populous first.
        QCOMPARE(known(outcome.placemarks.at(1).name), QStringLiteral("Manila"));
    }

    void blankSearchesFindNothing()
    {
        const auto geocoder = makeGeocoder("offline");
        for (const QString &address : { QStringLiteral("   "), QString(), QStringLiteral(" , Kenya") }) {
            const Outcome outcome = search(*geocoder, address);
            QVERIFY(outcome.completed);
            QCOMPARE(outcome.error, QString());
            QVERIFY(outcome.placemarks.isEmpty());
        }
    }

    void unusableGazetteerIsAnError()
    {
        QTemporaryFile notADatabase;
        QVERIFY(notADatabase.open());
        notADatabase.write("city,lat,lon\nNairobi,-1.28,36.82\n");
        notADatabase.flush();
        for (const QByteArray &path : { QByteArray("/nonexistent/gazetteer.sqlite"), QFile::encodeName(notADatabase.fileName()) }) {
            const auto geocoder = makeGeocoder("offline", path);
            const Outcome reversed = reverse(*geocoder, QGeoCoordinate(-1.2864, 36.8172));
            QVERIFY(reversed.completed);
            QCOMPARE(reversed.error, unavailable);
            QVERIFY(reversed.placemarks.isEmpty());
            QCOMPARE(search(*geocoder, QStringLiteral("Nairobi")).error, unavailable);
        }
    }

    void fallsBackOnTheInstalledGazetteer()
    {
        qunsetenv("TARNELO_GAZETTEER");
        // Nothing is built beside the tests' executables.
        QCOMPARE(gazetteerFilePath(), QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/tarnelo/gazetteer.sqlite")));
    }

    void completesLaterOnTheMainThread_data()
    {
        QTest::addColumn<QByteArray>("backend");
        QTest::newRow("offline") << QByteArray("offline");
        QTest::newRow("nominatim") << QByteArray("nominatim:") + m_nominatim.url().toUtf8();
    }

    void completesLaterOnTheMainThread()
    {
        QFETCH(QByteArray, backend);
        const auto geocoder = makeGeocoder(backend);
        for (const Outcome &outcome : { reverse(*geocoder, QGeoCoordinate(-1.2864, 36.8172)), search(*geocoder, QStringLiteral("Nairobi")) }) {
            QVERIFY(!outcome.completedInsideCall);
            QVERIFY(outcome.completed);
            QCOMPARE(outcome.thread, QThread::currentThread());
        }
    }

    void neverCompletesOnceDestroyed_data() { completesLaterOnTheMainThread_data(); }

    void neverCompletesOnceDestroyed()
    {
        QFETCH(QByteArray, backend);
        auto geocoder = makeGeocoder(backend);
        Outcome reversed;
        Outcome searched;
        geocoder->reverseGeocodeLocation(QGeoCoordinate(-1.2864, 36.8172), reversed.recorder());
        geocoder->geocodeAddressString(QStringLiteral("Nairobi"), searched.recorder());
        geocoder.reset();
        QTest::qWait(300);
        QVERIFY(!reversed.completed);
        QVERIFY(!searched.completed);
    }

    void asksNominatimForAddresses()
    {
        m_nominatim.answer("/search", 200, nairobiSearch);
        m_nominatim.takeTargets();
        const auto geocoder = makeGeocoder("nominatim:" + m_nominatim.url().toUtf8() + '/');
        const Outcome outcome = search(*geocoder, QStringLiteral("Nairobi, Kenya"));
        QCOMPARE(outcome.error, QString());
        const QUrl sent(m_nominatim.takeTargets().value(0));
        QCOMPARE(sent.path(), QStringLiteral("/search"));
        const QUrlQuery query(sent);
        QCOMPARE(query.queryItemValue(QStringLiteral("q"), QUrl::FullyDecoded), QStringLiteral("Nairobi, Kenya"));
        QCOMPARE(query.queryItemValue(QStringLiteral("format")), QStringLiteral("json"));
        QCOMPARE(query.queryItemValue(QStringLiteral("limit")), QStringLiteral("10"));

        QCOMPARE(outcome.placemarks.size(), 2);
        const Placemark &street = outcome.placemarks.at(0);
        QCOMPARE(QStringList({ known(street.name), known(street.thoroughfare), known(street.locality), known(street.administrativeArea),
                               known(street.postalCode), known(street.country) })
                     .join(QLatin1Char('|')),
                 QStringLiteral("Kenyatta Avenue|Kenyatta Avenue|Nairobi|Nairobi County|00100|Kenya"));
        QCOMPARE(street.location.value_or(QGeoCoordinate()), QGeoCoordinate(-1.2832533, 36.8172449));
        const Placemark &city = outcome.placemarks.at(1);
        QCOMPARE(known(city.name), QStringLiteral("Nairobi"));
        QVERIFY(!city.thoroughfare && !city.postalCode && !city.administrativeArea);
    }

    void asksNominatimForPoints()
    {
        m_nominatim.answer("/reverse", 200, parisReverse);
        m_nominatim.takeTargets();
        const auto geocoder = makeGeocoder("nominatim:" + m_nominatim.url().toUtf8());
        const QGeoCoordinate point(48.85661, 2.35222);
        const Outcome outcome = reverse(*geocoder, point);
        QCOMPARE(outcome.error, QString());
        const QUrl sent(m_nominatim.takeTargets().value(0));
        QCOMPARE(sent.path(), QStringLiteral("/reverse"));
        // The plugin writes six significant digits, a dozen metres at most.
        const QGeoCoordinate sentPoint(QUrlQuery(sent).queryItemValue(QStringLiteral("lat")).toDouble(),
                                       QUrlQuery(sent).queryItemValue(QStringLiteral("lon")).toDouble());
        QVERIFY(sentPoint.distanceTo(point) < 15);
        QCOMPARE(outcome.placemarks.size(), 1);
        const Placemark &place = outcome.placemarks.constFirst();
        QCOMPARE(QStringList({ known(place.name), known(place.locality), known(place.postalCode) }).join(QLatin1Char('|')),
                 QStringLiteral("Rue de Rivoli|Paris|75004"));
        QCOMPARE(place.location.value_or(QGeoCoordinate()), point);

        // What Nominatim says of a point it cannot name.
        m_nominatim.answer("/reverse", 200, R"({"error":"Unable to geocode"})");
        const Outcome atSea = reverse(*geocoder, QGeoCoordinate(0, -30));
        QCOMPARE(atSea.error, QString());
        QVERIFY(atSea.placemarks.isEmpty());
    }

    void reportsNominatimFailures()
    {
        m_nominatim.answer("/search", 503, "Service Unavailable");
        const auto geocoder = makeGeocoder("nominatim:" + m_nominatim.url().toUtf8());
        const Outcome outcome = search(*geocoder, QStringLiteral("Nairobi"));
        QVERIFY(outcome.completed);
        QVERIFY(!outcome.error.isEmpty());
        QVERIFY(outcome.placemarks.isEmpty());
    }

private:
    ScriptedResponder m_nominatim;
};

QTEST_GUILESS_MAIN(GeocoderTest)
#include "tst_geocoder.moc"
