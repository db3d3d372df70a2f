// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/ScriptedResponder.h"
#include "location/GazetteerFile.h"
#include "location/GeoBounds.h"
#include "location/Geocoder.h"
#include "location/PlaceNameFolding.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>
#include <QThread>
#include <QUrlQuery>

#include <algorithm>
#include <memory>

namespace
{
const QString unavailable = QStringLiteral("The offline gazetteer is not available");
const QGeoCoordinate nairobi(-1.2864, 36.8172);

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

// Name, street, locality, region, postcode and country, "-" for an unknown part.
QString described(const Placemark &place)
{
    QStringList parts;
    for (const std::optional<QString> &part : { place.name, place.thoroughfare, place.locality, place.administrativeArea, place.postalCode, place.country })
        parts.append(part.value_or(QStringLiteral("-")));
    return parts.join(QLatin1Char('|'));
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
        QTest::addColumn<QString>("place");
        QTest::newRow("central Nairobi") << nairobi << QStringLiteral("Nairobi|-|Nairobi|Nairobi County|-|Kenya");
        QTest::newRow("central Paris") << QGeoCoordinate(48.8566, 2.3522) << QStringLiteral("Paris|-|Paris|Île-de-France|-|France");
        // Nearer Saint-Ouen's centre than Paris's, but well inside Paris.
        QTest::newRow("Montmartre") << QGeoCoordinate(48.8867, 2.3431) << QStringLiteral("Paris|-|Paris|Île-de-France|-|France");
        // A town beside a city keeps its own name.
        QTest::newRow("Neuilly-sur-Seine") << QGeoCoordinate(48.8846, 2.2697) << QStringLiteral("Neuilly-sur-Seine|-|Neuilly-sur-Seine|Île-de-France|-|France");
        // Far out at sea, the nearest place of all, as a brute-force search of
        // the file finds it: Hanga Roa by 13 km from Adamstown, and Funafuti,
        // across the antimeridian, by 230 m from Alapi Village.
        const QString noronha = QStringLiteral("Fernando de Noronha (Distrito Estadual)");
        QTest::newRow("mid-Atlantic") << QGeoCoordinate(0, -30) << noronha + QLatin1String("|-|") + noronha + QLatin1String("|Pernambuco|-|Brazil");
        QTest::newRow("the Pacific's pole of inaccessibility") << QGeoCoordinate(-48.9, -123.4) << QStringLiteral("Hanga Roa|-|Hanga Roa|Valparaiso|-|Chile");
        QTest::newRow("beside the antimeridian") << QGeoCoordinate(-10, 179.9) << QStringLiteral("Funafuti|-|Funafuti|Funafuti|-|Tuvalu");
    }

    void namesPointsAfterThePlaceTheyAreIn()
    {
        QFETCH(QGeoCoordinate, point);
        const Outcome outcome = reverse(*makeGeocoder({}), point);
        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.placemarks.size(), 1);
        QTEST(described(outcome.placemarks.constFirst()), "place");
        QCOMPARE(outcome.placemarks.constFirst().location.value_or(QGeoCoordinate()), point);
    }

    // The first place found, or "" when none is.
    void findsPlacesByName_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("first");
        QTest::newRow("upper case with a diaeresis") << QStringLiteral("NAÏROBI") << QStringLiteral("Nairobi|-|Nairobi|Nairobi County|-|Kenya");
        QTest::newRow("address") << QStringLiteral("Nairobi, Kenya") << QStringLiteral("Nairobi|-|Nairobi|Nairobi County|-|Kenya");
        QTest::newRow("prefix") << QStringLiteral("Nairob") << QStringLiteral("Nairobi|-|Nairobi|Nairobi County|-|Kenya");
        QTest::newRow("without accents") << QStringLiteral("Sao Paulo") << QStringLiteral("São Paulo|-|São Paulo|São Paulo|-|Brazil");
        QTest::newRow("biggest of a name") << QStringLiteral("Paris") << QStringLiteral("Paris|-|Paris|Île-de-France|-|France");
        QTest::newRow("region named") << QStringLiteral("Paris, Texas") << QStringLiteral("Paris|-|Paris|Texas|-|United States");
        QTest::newRow("country code") << QStringLiteral("paris, ca") << QStringLiteral("Paris|-|Paris|Ontario|-|Canada");
        QTest::newRow("blank") << QStringLiteral("   ") << QString();
        QTest::newRow("null") << QString() << QString();
        QTest::newRow("only a country") << QStringLiteral(" , Kenya") << QString();
    }

    void findsPlacesByName()
    {
        QFETCH(QString, address);
        const Outcome outcome = search(*makeGeocoder("offline"), address);
        QVERIFY(outcome.completed);
        QCOMPARE(outcome.error, QString());
        QVERIFY(outcome.placemarks.size() <= 10);
        QTEST(outcome.placemarks.isEmpty() ? QString() : described(outcome.placemarks.constFirst()), "first");
    }

    // Manila and Manaus are bigger, but only Man is called that; after the
    // exact name come the names it begins, most populous first.
    void exactNameBeforePrefixesWhereThePlaceIs()
    {
        const Outcome outcome = search(*makeGeocoder("offline"), QStringLiteral("Man"));
        QCOMPARE(outcome.placemarks.size(), 10);
        QCOMPARE(described(outcome.placemarks.at(0)), QStringLiteral("Man|-|Man|Montagnes|-|Ivory Coast"));
        QVERIFY(outcome.placemarks.at(0).location->distanceTo(QGeoCoordinate(7.4125, -7.5538)) < 1000);
        QCOMPARE(outcome.placemarks.at(1).name.value_or(QString()), QStringLiteral("Manila"));
    }

    void unusableGazetteerIsAnError()
    {
        // A file that is there but is no database: this test's own executable.
        for (const QByteArray &path : { QByteArray("/nonexistent/gazetteer.sqlite"), QFile::encodeName(QCoreApplication::applicationFilePath()) }) {
            const auto geocoder = makeGeocoder("offline", path);
            const Outcome reversed = reverse(*geocoder, nairobi);
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

    void completesLaterOnTheMainThreadAndNeverOnceDestroyed_data()
    {
        QTest::addColumn<QByteArray>("backend");
        QTest::newRow("offline") << QByteArray("offline");
        QTest::newRow("nominatim") << QByteArray("nominatim:") + m_nominatim.url().toUtf8();
    }

    void completesLaterOnTheMainThreadAndNeverOnceDestroyed()
    {
        QFETCH(QByteArray, backend);
        auto geocoder = makeGeocoder(backend);
        for (const Outcome &outcome : { reverse(*geocoder, nairobi), search(*geocoder, QStringLiteral("Nairobi")) }) {
            QVERIFY(!outcome.completedInsideCall);
            QVERIFY(outcome.completed);
            QCOMPARE(outcome.thread, QThread::currentThread());
        }
        Outcome reversed;
        Outcome searched;
        geocoder->reverseGeocodeLocation(nairobi, reversed.recorder());
        geocoder->geocodeAddressString(QStringLiteral("Nairobi"), searched.recorder());
        geocoder.reset();
        QTest::qWait(300);
        QVERIFY(!reversed.completed);
        QVERIFY(!searched.completed);
    }

    void asksNominatimForAddresses()
    {
        m_nominatim.answer("/search", 200, R"([{"lat":"-1.2832533","lon":"36.8172449","display_name":"Kenyatta Avenue, Nairobi",
"address":{"road":"Kenyatta Avenue","city":"Nairobi","state":"Nairobi County","postcode":"00100","country":"Kenya","country_code":"ke"}},
{"lat":"-1.3","lon":"36.8","display_name":"Nairobi, Kenya","address":{"city":"Nairobi","country":"Kenya","country_code":"ke"}}])");
        m_nominatim.takeTargets();
        const Outcome outcome = search(*makeGeocoder("nominatim:" + m_nominatim.url().toUtf8() + '/'), QStringLiteral("Nairobi, Kenya"));
        QCOMPARE(outcome.error, QString());
        const QUrl sent(m_nominatim.takeTargets().value(0));
        QCOMPARE(QUrlQuery(sent).queryItemValue(QStringLiteral("q"), QUrl::FullyDecoded), QStringLiteral("Nairobi, Kenya"));
        QCOMPARE(QUrlQuery(sent).queryItemValue(QStringLiteral("limit")), QStringLiteral("10"));
        QCOMPARE(outcome.placemarks.size(), 2);
        QCOMPARE(described(outcome.placemarks.at(0)), QStringLiteral("Kenyatta Avenue|Kenyatta Avenue|Nairobi|Nairobi County|00100|Kenya"));
        QCOMPARE(outcome.placemarks.at(0).location.value_or(QGeoCoordinate()), QGeoCoordinate(-1.2832533, 36.8172449));
        QCOMPARE(described(outcome.placemarks.at(1)), QStringLiteral("Nairobi|-|Nairobi|-|-|Kenya"));
    }

    void asksNominatimForPointsAndReportsItsFailures()
    {
        m_nominatim.answer("/reverse", 200, R"({"lat":"48.8566","lon":"2.3522","display_name":"Rue de Rivoli, Paris",
"address":{"road":"Rue de Rivoli","city":"Paris","state":"Île-de-France","postcode":"75004","country":"France","country_code":"fr"}})");
        m_nominatim.takeTargets();
        const auto geocoder = makeGeocoder("nominatim:" + m_nominatim.url().toUtf8());
        const QGeoCoordinate point(48.85661, 2.35222);
        const Outcome outcome = reverse(*geocoder, point);
        QCOMPARE(outcome.error, QString());
        const QUrl sent(m_nominatim.takeTargets().value(0));
        // The plugin writes six significant digits, a dozen metres at most.
        const QGeoCoordinate sentPoint(QUrlQuery(sent).queryItemValue(QStringLiteral("lat")).toDouble(),
                                       QUrlQuery(sent).queryItemValue(QStringLiteral("lon")).toDouble());
        QVERIFY(sentPoint.distanceTo(point) < 15);
        QCOMPARE(outcome.placemarks.size(), 1);
        QCOMPARE(described(outcome.placemarks.constFirst()), QStringLiteral("Rue de Rivoli|Rue de Rivoli|Paris|Île-de-France|75004|France"));
        QCOMPARE(outcome.placemarks.constFirst().location.value_or(QGeoCoordinate()), point);

        // What Nominatim says of a point it cannot name.
        m_nominatim.answer("/reverse", 200, R"({"error":"Unable to geocode"})");
        const Outcome atSea = reverse(*geocoder, QGeoCoordinate(0, -30));
        QCOMPARE(atSea.error, QString());
        QVERIFY(atSea.placemarks.isEmpty());

        m_nominatim.answer("/search", 503, "Service Unavailable");
        const Outcome failed = search(*geocoder, QStringLiteral("Nairobi"));
        QVERIFY(!failed.error.isEmpty());
        QVERIFY(failed.placemarks.isEmpty());
    }

private:
    ScriptedResponder m_nominatim;
};

QTEST_GUILESS_MAIN(GeocoderTest)
#include "tst_geocoder.moc"
