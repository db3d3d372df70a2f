// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/ScriptedResponder.h"
#include "location/GazetteerFile.h"
#include "location/Geocoder.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>
#include <QThread>
#include <QUrlQuery>

#include <memory>

namespace
{
const QString unavailable = QStringLiteral("The offline gazetteer is not available");
const QGeoCoordinate nairobi(-1.2864, 36.8172);
const QGeoCoordinate paris(48.85661, 2.35222);

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

// A reverse lookup for a point, a search for a text.
Outcome lookUp(Geocoder &geocoder, const QVariant &asked)
{
    Outcome outcome;
    if (asked.userType() == qMetaTypeId<QGeoCoordinate>())
        geocoder.reverseGeocodeLocation(asked.value<QGeoCoordinate>(), outcome.recorder());
    else
        geocoder.geocodeAddressString(asked.toString(), outcome.recorder());
    outcome.completedInsideCall = outcome.completed;
    // Whether it completed is the outcome's to tell.
    static_cast<void>(QTest::qWaitFor([&outcome] { return outcome.completed; }, 5000));
    return outcome;
}
} // namespace

class GeocoderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A point is named after the place it is in; a name finds its first
    // place, or "" when none is. The geocoder is offline unless told otherwise.
    void offlineGazetteerNamesPointsAndFindsNames_data()
    {
        QTest::addColumn<QVariant>("asked");
        QTest::addColumn<QString>("first");
        const auto point = [](double latitude, double longitude) { return QVariant::fromValue(QGeoCoordinate(latitude, longitude)); };
        // Nearer Saint-Ouen's centre than Paris's, but well inside Paris.
        QTest::newRow("Montmartre") << point(48.8867, 2.3431) << QStringLiteral("Paris|-|Paris|Île-de-France|-|France");
        // A town beside a city keeps its own name.
        QTest::newRow("Neuilly-sur-Seine") << point(48.8846, 2.2697) << QStringLiteral("Neuilly-sur-Seine|-|Neuilly-sur-Seine|Île-de-France|-|France");
        // Far out at sea, the nearest place of all, as a brute-force search of
        // the file finds it: Hanga Roa by 13 km from Adamstown, and Funafuti,
        // across the antimeridian, by 230 m from Alapi Village.
        QTest::newRow("the Pacific's pole of inaccessibility") << point(-48.9, -123.4) << QStringLiteral("Hanga Roa|-|Hanga Roa|Valparaiso|-|Chile");
        QTest::newRow("beside the antimeridian") << point(-10, 179.9) << QStringLiteral("Funafuti|-|Funafuti|Funafuti|-|Tuvalu");
        QTest::newRow("upper case with a diaeresis") << QVariant(QStringLiteral("NAÏROBI")) << QStringLiteral("Nairobi|-|Nairobi|Nairobi County|-|Kenya");
        QTest::newRow("prefix") << QVariant(QStringLiteral("Nairob")) << QStringLiteral("Nairobi|-|Nairobi|Nairobi County|-|Kenya");
        QTest::newRow("full width") << QVariant(QStringLiteral("Ｔｏｋｙｏ")) << QStringLiteral("Tokyo|-|Tokyo|Tokyo|-|Japan");
        QTest::newRow("hyphen, spaces and accents") << QVariant(QStringLiteral("  saint   etienne "))
                                                    << QStringLiteral("Saint-Étienne|-|Saint-Étienne|Auvergne-Rhône-Alpes|-|France");
        QTest::newRow("biggest of a name") << QVariant(QStringLiteral("Paris")) << QStringLiteral("Paris|-|Paris|Île-de-France|-|France");
        QTest::newRow("region named") << QVariant(QStringLiteral("Paris, Texas")) << QStringLiteral("Paris|-|Paris|Texas|-|United States");
        QTest::newRow("country code") << QVariant(QStringLiteral("paris, ca")) << QStringLiteral("Paris|-|Paris|Ontario|-|Canada");
        // Manila and Manaus are bigger, but only Man is called that.
        QTest::newRow("exact name before bigger prefixes") << QVariant(QStringLiteral("Man")) << QStringLiteral("Man|-|Man|Montagnes|-|Ivory Coast");
        QTest::newRow("only a country") << QVariant(QStringLiteral(" , Kenya")) << QString();
    }

    void offlineGazetteerNamesPointsAndFindsNames()
    {
        QFETCH(QVariant, asked);
        const Outcome outcome = lookUp(*makeGeocoder({}), asked);
        QVERIFY(outcome.completed);
        QCOMPARE(outcome.error, QString());
        QVERIFY(outcome.placemarks.size() <= 10);
        QTEST(outcome.placemarks.isEmpty() ? QString() : described(outcome.placemarks.constFirst()), "first");
        if (asked.userType() == qMetaTypeId<QGeoCoordinate>()) {
            QCOMPARE(outcome.placemarks.size(), 1);
            QCOMPARE(outcome.placemarks.constFirst().location.value_or(QGeoCoordinate()), asked.value<QGeoCoordinate>());
        }
    }

    void unusableGazetteerIsAnError()
    {
        // A file that is there but is no database: this test's own executable.
        for (const QByteArray &path : { QByteArray("/nonexistent/gazetteer.sqlite"), QFile::encodeName(QCoreApplication::applicationFilePath()) }) {
            const auto geocoder = makeGeocoder("offline", path);
            for (const QVariant &asked : { QVariant::fromValue(nairobi), QVariant(QStringLiteral("Nairobi")) })
                QCOMPARE(lookUp(*geocoder, asked).error, unavailable);
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
        for (const Outcome &outcome : { lookUp(*geocoder, QVariant::fromValue(nairobi)), lookUp(*geocoder, QStringLiteral("Nairobi")) }) {
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

    void asksNominatimAndReportsItsFailures_data()
    {
        QTest::addColumn<QVariant>("asked");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("found"); // the places, one a line, or "error"
        const QVariant address(QStringLiteral("Nairobi, Kenya"));
        QTest::newRow("address") << address << 200 << QByteArray(R"([{"lat":"-1.2832533","lon":"36.8172449","display_name":"Kenyatta Avenue",
"address":{"road":"Kenyatta Avenue","city":"Nairobi","state":"Nairobi County","postcode":"00100","country":"Kenya","country_code":"ke"}},
{"lat":"-1.3","lon":"36.8","display_name":"Nairobi, Kenya","address":{"city":"Nairobi","country":"Kenya","country_code":"ke"}}])")
                                 << QStringLiteral("Kenyatta Avenue|Kenyatta Avenue|Nairobi|Nairobi County|00100|Kenya\nNairobi|-|Nairobi|-|-|Kenya");
        QTest::newRow("point") << QVariant::fromValue(paris) << 200 << QByteArray(R"({"lat":"48.8566","lon":"2.3522","display_name":"Rue de Rivoli",
"address":{"road":"Rue de Rivoli","city":"Paris","state":"Île-de-France","postcode":"75004","country":"France","country_code":"fr"}})")
                               << QStringLiteral("Rue de Rivoli|Rue de Rivoli|Paris|Île-de-France|75004|France");
        QTest::newRow("point at sea") << QVariant::fromValue(paris) << 200 << QByteArray(R"({"error":"Unable to geocode"})") << QString();
        QTest::newRow("server failure") << address << 503 << QByteArray("Service Unavailable") << QStringLiteral("error");
    }

    void asksNominatimAndReportsItsFailures()
    {
        QFETCH(QVariant, asked);
        QFETCH(int, status);
        QFETCH(QByteArray, answer);
        const bool searching = asked.userType() == QMetaType::QString;
        m_nominatim.answer(searching ? "/search" : "/reverse", status, answer.toStdString());
        m_nominatim.takeTargets();
        const Outcome outcome = lookUp(*makeGeocoder("nominatim:" + m_nominatim.url().toUtf8() + '/'), asked);
        QStringList found;
        for (const Placemark &place : outcome.placemarks)
            found.append(described(place));
        QTEST(outcome.error.isEmpty() ? found.join(QLatin1Char('\n')) : QStringLiteral("error"), "found");
        const QUrlQuery sent(QUrl(m_nominatim.takeTargets().value(0)));
        if (searching) {
            QCOMPARE(sent.queryItemValue(QStringLiteral("q"), QUrl::FullyDecoded), asked.toString());
            QCOMPARE(sent.queryItemValue(QStringLiteral("limit")), QStringLiteral("10"));
        } else {
            // The plugin writes six significant digits, a dozen metres at most.
            const QGeoCoordinate sentPoint(sent.queryItemValue(QStringLiteral("lat")).toDouble(), sent.queryItemValue(QStringLiteral("lon")).toDouble());
            QVERIFY(sentPoint.distanceTo(paris) < 15);
        }
        if (!found.isEmpty())
            QCOMPARE(outcome.placemarks.constFirst().location.value_or(QGeoCoordinate()), searching ? QGeoCoordinate(-1.2832533, 36.8172449) : paris);
    }

private:
    ScriptedResponder m_nominatim;
};

QTEST_GUILESS_MAIN(GeocoderTest)
#include "tst_geocoder.moc"
