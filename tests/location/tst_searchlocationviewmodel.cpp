// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/Placemark.h"
#include "location/SearchLocationViewModel.h"

#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(Placemark)

namespace
{
const QGeoCoordinate nairobi(-1.2864, 36.8172);
const QGeoCoordinate mombasa(-4.0547, 39.6636);
const QGeoCoordinate malindi(-3.2175, 40.1191);

Placemark place(const QString &name, const QGeoCoordinate &where)
{
    return Placemark { name, std::nullopt, name, std::nullopt, std::nullopt, QStringLiteral("Kenya"), where };
}

// Appends to `changes` the name of each of the screen's properties that
// changes, in order, for as long as the model lives.
void logChanges(SearchLocationViewModel &model, QStringList &changes)
{
    const auto record = [&changes](const char *name) { return [&changes, name] { changes.append(QString::fromLatin1(name)); }; };
    QObject::connect(&model, &SearchLocationViewModel::locationDetailsChanged, &model, record("locationDetails"));
    QObject::connect(&model, &SearchLocationViewModel::searchedLocationCoordinateChanged, &model, record("searchedLocationCoordinate"));
    QObject::connect(&model, &SearchLocationViewModel::isBottomSheetVisibleChanged, &model, record("isBottomSheetVisible"));
    QObject::connect(&model, &SearchLocationViewModel::isSearchFieldFocusedChanged, &model, record("isSearchFieldFocused"));
    QObject::connect(model.locationManager(), &LocationManager::regionChanged, &model, record("region"));
}
} // namespace

class SearchLocationViewModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void detailsNameThePlaceAndJoinItsKnownAddressParts_data()
    {
        QTest::addColumn<Placemark>("placemark");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("address");
        const QString hall = QStringLiteral("City Hall");
        const QString kenya = QStringLiteral("Kenya");
        QTest::newRow("every part") << Placemark {
            hall, QStringLiteral("City Hall Way"), QStringLiteral("Nairobi"), QStringLiteral("Nairobi Area"), QStringLiteral("00100"), kenya, nairobi
        } << hall << QStringLiteral("City Hall Way, Nairobi, Nairobi Area, 00100, Kenya");
        QTest::newRow("gaps and blank parts are skipped")
            << Placemark { hall, std::nullopt, QStringLiteral("Nairobi"), QString(), std::nullopt, kenya, nairobi } << hall << QStringLiteral("Nairobi, Kenya");
        QTest::newRow("only a country, no name") << Placemark { {}, {}, {}, {}, {}, kenya, nairobi } << QStringLiteral("Unknown") << kenya;
    }

    void detailsNameThePlaceAndJoinItsKnownAddressParts()
    {
        QFETCH(Placemark, placemark);
        const std::optional<LocationDetails> details = LocationDetails::fromPlacemark(placemark);
        QVERIFY(details);
        QTEST(details->name, "name");
        QTEST(details->address, "address");
        QCOMPARE(QGeoCoordinate(details->latitude, details->longitude), nairobi);
    }

    void onlyATypedQueryIsGeocoded()
    {
        SearchLocationViewModel model;
        QSignalSpy started(&model, &SearchLocationViewModel::geocodingStarted);
        model.search();
        QCOMPARE(started.count(), 0);

        model.setSearchQuery(QStringLiteral("   "));
        model.search();
        QCOMPARE(started.count(), 1);
        QCOMPARE(started.at(0).at(0).toString(), QStringLiteral("   "));
    }

    // The map follows whichever came last, a found place or the device's fix;
    // a later search replaces the place; closing the sheet keeps the pin.
    void aFoundPlaceIsCentredPinnedAndShown()
    {
        qputenv("TARNELO_POSITION", "fixed:-4.0547,39.6636");
        QStringList changes;
        SearchLocationViewModel model;
        qputenv("TARNELO_POSITION", "none");
        model.setSearchFieldFocused(true);
        logChanges(model, changes);

        // The search lands before the device's fix, which is asked for on creation.
        model.showFirstPlace({ place(QStringLiteral("Nairobi"), nairobi), place(QStringLiteral("Mombasa"), mombasa) }, QString());

        QCOMPARE(model.locationManager()->region().center, nairobi);
        QCOMPARE(model.locationDetails()->name, QStringLiteral("Nairobi"));
        QVERIFY(model.showsBottomSheet());
        QVERIFY(!model.isSearchFieldFocused());
        // The keyboard goes only once the sheet is on its way.
        QVERIFY(changes.indexOf(QStringLiteral("isBottomSheetVisible")) < changes.indexOf(QStringLiteral("isSearchFieldFocused")));
        QVERIFY(changes.indexOf(QStringLiteral("locationDetails")) < changes.indexOf(QStringLiteral("isBottomSheetVisible")));
        QTRY_COMPARE(model.locationManager()->userLocation(), mombasa);
        QCOMPARE(model.locationManager()->region().center, mombasa);
        QCOMPARE(model.mapLocations().size(), 1);
        QCOMPARE(model.mapLocations().first().coordinate, nairobi);

        model.showFirstPlace({ place(QStringLiteral("Malindi"), malindi) }, QString());
        QCOMPARE(model.locationManager()->region().center, malindi);
        QCOMPARE(model.locationDetails()->name, QStringLiteral("Malindi"));
        QCOMPARE(model.mapLocations().first().coordinate, malindi);
        model.setProperty("isBottomSheetVisible", false);
        QVERIFY(!model.showsBottomSheet());
        QCOMPARE(model.mapLocations().size(), 1);
        QCOMPARE(model.searchedLocationCoordinate(), malindi);
    }

    void anUnusableAnswerChangesNothing_data()
    {
        QTest::addColumn<QList<Placemark>>("placemarks");
        QTest::addColumn<QString>("error");
        Placemark nowhere = place(QStringLiteral("Atlantis"), nairobi);
        nowhere.location.reset();
        QTest::newRow("error") << QList<Placemark> { place(QStringLiteral("Nairobi"), nairobi) } << QStringLiteral("The lookup failed.");
        QTest::newRow("no place") << QList<Placemark>() << QString();
        QTest::newRow("first place without a location") << QList<Placemark> { nowhere, place(QStringLiteral("Nairobi"), nairobi) } << QString();
    }

    void anUnusableAnswerChangesNothing()
    {
        QFETCH(QList<Placemark>, placemarks);
        QFETCH(QString, error);
        QStringList changes;
        SearchLocationViewModel model;
        model.showFirstPlace({ place(QStringLiteral("Mombasa"), mombasa) }, QString());
        model.setBottomSheetVisible(false);
        model.setSearchFieldFocused(true);
        logChanges(model, changes);

        model.showFirstPlace(placemarks, error);

        QCOMPARE(changes, QStringList());
    }
};

QTEST_GUILESS_MAIN(SearchLocationViewModelTest)
#include "tst_searchlocationviewmodel.moc"
