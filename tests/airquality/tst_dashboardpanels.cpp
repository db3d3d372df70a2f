// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/MainCategoryViewModel.h"
#include "airquality/MainHeaderViewModel.h"
#include "airquality/MainWeatherViewModel.h"
#include "airquality/PlaceAirCardModel.h"
#include "airquality/PollutantCardModel.h"
#include "airquality/TipsViewModel.h"
#include "common/ScriptedResponder.h"
#include "common/StdoutCapture.h"
#include "location/LocationDetails.h"
#include "storage/SQliteLogin.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

namespace
{
const char *const airQualityPath = "/tarnelo/v1/airquality.php";
const char *const weatherPath = "/tarnelo/v1/weatherapi.php";
const std::string firstRecord = R"({"id":"1","aqi":"3","co":"230.5","no":"0.4","no2":"21","o3":"80","so2":"2.1","pm25":"38.2","pm10":"51","nh3":"1.5"})";
const std::string reading = "[" + firstRecord + "]";
const QStringList firstReadings = QStringLiteral("230.5 0.4 21 80 2.1 38.2 51 1.5").split(QLatin1Char(' '));
const std::string weather = R"([{"id":"1","temp":"283.6","humid":"61","wind":"14","uv":"7","pollen":"High"}])";

QString text(const QObject &object, const char *property)
{
    return object.property(property).toString();
}

QStringList shownReadings(const QObject &panel)
{
    QStringList shown;
    for (const char *property : { "txt_co", "txt_no", "txt_no2", "txt_o3", "txt_so2", "txt_pm25", "txt_pm10", "txt_nh3" })
        shown << text(panel, property);
    return shown;
}

void moveTo(TipsViewModel &tips, double latitude, double longitude)
{
    Q_EMIT tips.locationManager()->locationManager()->locationsUpdated(
        { QGeoPositionInfo(QGeoCoordinate(latitude, longitude), QDateTime::currentDateTimeUtc()) });
}
} // namespace

// The dashboard's panels, the searched place's card and the health tips: what
// each asks the backend and what it shows of the answer.
class DashboardPanelsTest : public QObject
{
    Q_OBJECT

    ScriptedResponder m_responder;

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
        // Readings and coordinates are C-locale numbers whatever the user's
        // locale; one that writes "12,5" and groups with "." shows any slip.
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }

    // An empty answer classifies again whatever category is held by then; a
    // failed refresh asks again for the last position, says so and keeps the
    // values and their age.
    void headerShowsTheFirstReadingAndKeepsItOnAnEmptyOrFailedAnswer()
    {
        MainHeaderViewModel header;
        QSignalSpy statusChanged(&header, &MainHeaderViewModel::statusChanged);
        m_responder.answer(airQualityPath, 200, reading);
        header.showPosition(-33.8688, 151.2093);
        QVERIFY(statusChanged.wait());
        QCOMPARE(m_responder.takeTargets(), QStringList { QStringLiteral("/tarnelo/v1/airquality.php?lat=-33.8688&lon=151.2093") });
        QCOMPARE(shownReadings(header), firstReadings);
        // What each category reads as is tst_aqicategories'; here only that it is applied.
        QCOMPARE(text(header, "txt_status"), QStringLiteral("Unhealthy for sensitive groups"));
        QCOMPARE(header.updatedText(), QStringLiteral("Updated just now"));

        header.setProperty("txt_aqi", QStringLiteral("6"));
        m_responder.answer(airQualityPath, 200, "[]");
        header.showPosition(1, 2);
        QVERIFY(statusChanged.wait());
        QCOMPARE(text(header, "txt_status"), QStringLiteral("Hazardous"));
        QCOMPARE(text(header, "txt_co"), QStringLiteral("230.5"));

        m_responder.takeTargets();
        m_responder.answer(airQualityPath, 200, "not json");
        header.refresh();
        QTRY_COMPARE(header.refreshProblem(), QStringLiteral("Could not refresh: the service did not answer"));
        QCOMPARE(m_responder.takeTargets(), QStringList { QStringLiteral("/tarnelo/v1/airquality.php?lat=1&lon=2") });
        QCOMPARE(header.updatedText(), QStringLiteral("Updated just now"));
    }

    // The initial 22 K until the first answer, then whole degrees Celsius (only
    // the exact offset keeps 283.6 K's 10.45 below the half); a temperature
    // that is not a number keeps the one shown.
    void weatherPanelShowsItsReadingUntilAGoodOneComes()
    {
        MainWeatherViewModel panel;
        QCOMPARE(text(panel, "celsiusText"), QStringLiteral("-251.0°C"));
        m_responder.answer(weatherPath, 200, weather);
        QSignalSpy changed(&panel, &MainWeatherViewModel::readingsChanged);
        panel.showPosition(51.5074, -0.1278);
        QVERIFY(changed.wait());
        QCOMPARE(text(panel, "celsiusText"), QStringLiteral("10.0°C"));
        QCOMPARE(text(panel, "txt_pollen"), QStringLiteral("High"));

        m_responder.answer(weatherPath, 200, R"([{"id":"1","temp":"hot","humid":"61","wind":"14","uv":"7","pollen":"High"}])");
        panel.showPosition(51.5074, -0.1278);
        QVERIFY(changed.wait());
        QCOMPARE(text(panel, "txt_temp"), QStringLiteral("hot"));
        QCOMPARE(text(panel, "celsiusText"), QStringLiteral("10.0°C"));
    }

    // A signed-in user's search: both readings at the place, then one log of
    // them with the device's position, unencoded; none when a reading failed.
    void placeCardReadsThePlaceAndLogsTheSearch()
    {
        SQliteLogin().insert(QStringLiteral("f00d"), QStringLiteral("Ada"), {}, QStringLiteral("ada@example.test"), {}, QStringLiteral("2"), {});
        m_responder.answer(airQualityPath, 200, reading);
        m_responder.answer(weatherPath, 200, weather);
        m_responder.takeTargets();
        PlaceAirCardModel card;
        card.setProperty("deviceLocation", QVariant::fromValue(QGeoCoordinate(-1.2864, 36.8172)));
        const LocationDetails mombasa { QStringLiteral("Mombasa"), {}, -4.0435, 39.6682 };
        const QString log = QStringLiteral("/tarnelo/v1/locationlogs.php?txt_aqi=3&txt_co=230.5&txt_no=0.4&txt_no2=21&txt_o3=80&txt_so2=2.1&txt_pm25=38.2"
                                           "&txt_pm10=51&txt_nh3=1.5&roundedCelsius=10.0&txt_humid=61&txt_wind=14&txt_uv=7&txt_pollen=High"
                                           "&txt_lat=-1.2864&txt_log=36.8172&searchlat=-4.0435&searchlog=39.6682&user_id=f00d");
        QStringList targets;
        card.setPlace(QVariant::fromValue(mombasa));
        (void)QTest::qWaitFor([&] { return !(targets += m_responder.takeTargets()).filter(QStringLiteral("locationlogs")).isEmpty(); }, 5000);
        QCOMPARE(card.phase(), PlaceAirCardModel::Phase::Ready);
        QCOMPARE(card.txtStatus(), QStringLiteral("Unhealthy for sensitive groups"));
        QCOMPARE(targets.filter(QStringLiteral("php?lat=-4.0435&lon=39.6682")).size(), 2);
        QCOMPARE(targets.filter(QStringLiteral("locationlogs")), QStringList { log });

        m_responder.answer(weatherPath, 500, "not a list");
        card.setPlace(QVariant::fromValue(mombasa));
        QTRY_COMPARE(card.phase(), PlaceAirCardModel::Phase::Failed);
        QTest::qWait(200);
        QCOMPARE(m_responder.takeTargets().filter(QStringLiteral("locationlogs")), QStringList());
        SQliteLogin().deleteAll();
    }

    void tipsShowTheFirstReadingAtEachPosition()
    {
        TipsViewModel tips;
        QSignalSpy changed(&tips, &TipsViewModel::readingsChanged);

        m_responder.answer(airQualityPath, 200,
                           "[" + firstRecord + R"(,{"id":"2","aqi":"5","co":"999","no":"9","no2":"99","o3":"9","so2":"9","pm25":"99","pm10":"99","nh3":"9"}])");
        QStringList lines;
        {
            StdoutCapture capture;
            moveTo(tips, -1.2864, 36.8172);
            QVERIFY(changed.wait());
            lines = capture.takeLines();
        }
        const QString query = QStringLiteral("/tarnelo/v1/airquality.php?lat=-1.2864&lon=36.8172");
        QCOMPARE(lines.value(0), QStringLiteral("URL PRINT  ") + m_responder.url() + query);
        QCOMPARE(m_responder.takeTargets(), QStringList { query });
        QCOMPARE(shownReadings(tips), firstReadings);

        // An empty list keeps every reading.
        m_responder.answer(airQualityPath, 200, "[]");
        moveTo(tips, 48, 2.5);
        QStringList targets;
        QTRY_VERIFY(!(targets += m_responder.takeTargets()).isEmpty());
        QCOMPARE(targets, QStringList { QStringLiteral("/tarnelo/v1/airquality.php?lat=48&lon=2.5") });
        QTest::qWait(50);
        QCOMPARE(text(tips, "txt_lat"), QStringLiteral("48"));
        QCOMPARE(text(tips, "txt_pm25"), QStringLiteral("38.2"));
    }

    // Any reading after a number: only finite C-locale numbers place the
    // marker, clamped to the scale.
    void cardPlacesItsMarkerOnTheScale_data()
    {
        QTest::addColumn<QString>("reading");
        QTest::addColumn<double>("concentration");
        QTest::addColumn<double>("markerX");
        QTest::newRow("a fraction") << QStringLiteral("45.6") << 45.6 << 22.8;
        QTest::newRow("beyond the scale") << QStringLiteral("1200") << 1200. << 300.;
        QTest::newRow("below zero") << QStringLiteral("-5") << -5. << 0.;
        QTest::newRow("not a number") << QStringLiteral("abc") << 0. << 0.;
        QTest::newRow("not a finite number") << QStringLiteral("nan") << 0. << 0.;
        QTest::newRow("a decimal comma") << QStringLiteral("12,5") << 0. << 0.;
    }

    void cardPlacesItsMarkerOnTheScale()
    {
        QFETCH(QString, reading);
        QFETCH(double, concentration);
        QFETCH(double, markerX);
        PollutantCardModel card;
        card.setProperty("reading", QStringLiteral("599"));
        card.setProperty("reading", reading);
        QCOMPARE(card.property("txt_co").toDouble(), concentration);
        QCOMPARE(card.property("markerX").toDouble(), markerX);
    }

    void categoryCardsTurnOneByOneAndAllBack()
    {
        MainCategoryViewModel category;
        const auto flags = [&category] {
            QString shown;
            for (int flag = 1; flag <= 6; ++flag)
                shown += category.property(QByteArray("isSecondButtonVisible" + QByteArray::number(flag))).toBool() ? QLatin1Char('1') : QLatin1Char('0');
            return shown;
        };
        QSignalSpy changed(&category, &MainCategoryViewModel::visibilityChanged);
        category.toggle(2);
        QCOMPARE(flags(), QStringLiteral("010001"));
        category.toggle(5);
        category.toggle(0);
        category.toggle(6);
        QCOMPARE(flags(), QStringLiteral("010011"));
        category.toggle(2);
        QCOMPARE(flags(), QStringLiteral("000011"));
        QCOMPARE(changed.count(), 3);
        category.turnAllBack();
        QCOMPARE(flags(), QStringLiteral("000000"));
        category.turnAllBack();
        QCOMPARE(changed.count(), 4);
    }
};

QTEST_GUILESS_MAIN(DashboardPanelsTest)
#include "tst_dashboardpanels.moc"
