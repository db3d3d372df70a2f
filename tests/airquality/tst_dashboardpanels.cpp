// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/MainHeaderViewModel.h"
#include "airquality/MainWeatherViewModel.h"
#include "airquality/PlaceAirCardModel.h"
#include "common/ScriptedResponder.h"
#include "common/StdoutCapture.h"
#include "location/LocationDetails.h"
#include "storage/SQliteLogin.h"

#include <QColor>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

namespace
{
const std::string reading = R"([{"id":"1","aqi":"3","co":"230.5","no":"0.4","no2":"21","o3":"80","so2":"2.1","pm25":"38.2","pm10":"51","nh3":"1.5"}])";
const std::string weather = R"([{"id":"1","temp":"300.65","humid":"61","wind":"14","uv":"7","pollen":"High"}])";

QString text(const QObject &object, const char *property)
{
    return object.property(property).toString();
}
} // namespace

class DashboardPanelsTest : public QObject
{
    Q_OBJECT

    ScriptedResponder m_responder;

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
    }

    void headerShowsTheFirstReadingAndKeepsItOnAnEmptyAnswer()
    {
        MainHeaderViewModel header;
        QCOMPARE(text(header, "txt_status"), QStringLiteral("AQI Status"));
        QCOMPARE(text(header, "aqiValue"), QStringLiteral("0"));
        QCOMPARE(header.property("statusColor").value<QColor>(), QColor(Qt::white));
        QCOMPARE(text(header, "towndate"), QStringLiteral("Location"));

        QSignalSpy changed(&header, &MainHeaderViewModel::readingsChanged);
        QSignalSpy statusChanged(&header, &MainHeaderViewModel::statusChanged);
        m_responder.answer("/tarnelo/v1/airquality.php", 200, reading);
        header.showPosition(-33.8688, 151.2093);
        QCOMPARE(text(header, "searchlat"), QStringLiteral("-33.8688"));
        QVERIFY(statusChanged.wait());
        QCOMPARE(m_responder.takeTargets(), QStringList { QStringLiteral("/tarnelo/v1/airquality.php?lat=-33.8688&lon=151.2093") });
        QCOMPARE(changed.count(), 1);
        QCOMPARE(text(header, "txt_aqi"), QStringLiteral("3"));
        QCOMPARE(text(header, "txt_pm25"), QStringLiteral("38.2"));
        QCOMPARE(text(header, "txt_nh3"), QStringLiteral("1.5"));
        // What each category reads as is tst_aqicategories'; here only that it is applied.
        QCOMPARE(text(header, "txt_status"), QStringLiteral("Unhealthy for sensitive groups"));

        // An empty answer classifies again whatever category is held by then.
        header.setProperty("txt_aqi", QStringLiteral("6"));
        m_responder.answer("/tarnelo/v1/airquality.php", 200, "[]");
        header.showPosition(1, 2);
        QVERIFY(statusChanged.wait());
        QCOMPARE(text(header, "txt_status"), QStringLiteral("Hazardous"));
        QCOMPARE(text(header, "txt_co"), QStringLiteral("230.5"));
    }

    void weatherShowsWholeDegreesCelsius_data()
    {
        QTest::addColumn<QString>("kelvin");
        QTest::addColumn<QString>("celsius");
        QTest::newRow("warm") << QStringLiteral("300.65") << QStringLiteral("28.0°C");
        QTest::newRow("freezing") << QStringLiteral("273.15") << QStringLiteral("0.0°C");
        // Only the exact offset keeps 10.45 below the half.
        QTest::newRow("the offset's fraction decides") << QStringLiteral("283.6") << QStringLiteral("10.0°C");
        QTest::newRow("below zero") << QStringLiteral("255.4") << QStringLiteral("-18.0°C");
        QTest::newRow("not a number") << QStringLiteral("warm") << QString();
    }

    void weatherShowsWholeDegreesCelsius()
    {
        QFETCH(QString, kelvin);
        QFETCH(QString, celsius);
        QCOMPARE(MainWeatherViewModel::celsiusTextFor(kelvin).value_or(QString()), celsius);
    }

    // The initial 22 K until the first answer; then a temperature that is not
    // a number, or an answer that does not decode, keeps the one shown.
    void weatherPanelShowsItsReadingUntilAGoodOneComes()
    {
        MainWeatherViewModel panel;
        QCOMPARE(text(panel, "celsiusText"), QStringLiteral("-251.0°C"));
        m_responder.answer("/tarnelo/v1/weatherapi.php", 200, weather);
        QSignalSpy changed(&panel, &MainWeatherViewModel::readingsChanged);
        panel.showPosition(51.5074, -0.1278);
        QVERIFY(changed.wait());
        QCOMPARE(text(panel, "celsiusText"), QStringLiteral("28.0°C"));
        QCOMPARE(text(panel, "txt_pollen"), QStringLiteral("High"));

        m_responder.answer("/tarnelo/v1/weatherapi.php", 200, R"([{"id":"1","temp":"hot","humid":"61","wind":"14","uv":"7","pollen":"High"}])");
        panel.showPosition(51.5074, -0.1278);
        QVERIFY(changed.wait());
        QCOMPARE(text(panel, "txt_temp"), QStringLiteral("hot"));
        QCOMPARE(text(panel, "celsiusText"), QStringLiteral("28.0°C"));

        m_responder.answer("/tarnelo/v1/weatherapi.php", 200, R"([{"id":"1","temp":300}])");
        QStringList lines;
        {
            StdoutCapture capture;
            panel.showPosition(51.5074, -0.1278);
            (void)QTest::qWaitFor([&] { return !(lines += capture.takeLines()).filter(QStringLiteral("Failed")).isEmpty(); }, 5000);
        }
        QCOMPARE(lines.filter(QStringLiteral("Failed")).value(0).left(23), QStringLiteral("Failed to decode data: "));
        QCOMPARE(text(panel, "txt_temp"), QStringLiteral("hot"));
    }

    // A signed-in user's search: both readings at the place, then one log of
    // them with the device's position, unencoded; none when a reading failed.
    void placeCardReadsThePlaceAndLogsTheSearch()
    {
        SQliteLogin().deleteAll();
        SQliteLogin().insert(QStringLiteral("f00d"), QStringLiteral("Ada"), {}, QStringLiteral("ada@example.test"), {}, QStringLiteral("2"), {});
        m_responder.answer("/tarnelo/v1/airquality.php", 200, reading);
        m_responder.answer("/tarnelo/v1/weatherapi.php", 200, weather);
        m_responder.takeTargets();
        PlaceAirCardModel card;
        card.setProperty("deviceLocation", QVariant::fromValue(QGeoCoordinate(-1.2864, 36.8172)));
        const LocationDetails mombasa { QStringLiteral("Mombasa"), {}, -4.0435, 39.6682 };
        const QString log = QStringLiteral("/tarnelo/v1/locationlogs.php?txt_aqi=3&txt_co=230.5&txt_no=0.4&txt_no2=21&txt_o3=80&txt_so2=2.1&txt_pm25=38.2"
                                           "&txt_pm10=51&txt_nh3=1.5&roundedCelsius=28.0&txt_humid=61&txt_wind=14&txt_uv=7&txt_pollen=High"
                                           "&txt_lat=-1.2864&txt_log=36.8172&searchlat=-4.0435&searchlog=39.6682&user_id=f00d");
        QStringList targets;
        card.setPlace(QVariant::fromValue(mombasa));
        (void)QTest::qWaitFor([&] { return !(targets += m_responder.takeTargets()).filter(QStringLiteral("locationlogs")).isEmpty(); }, 5000);
        QCOMPARE(card.phase(), PlaceAirCardModel::Phase::Ready);
        QCOMPARE(card.txtStatus(), QStringLiteral("Unhealthy for sensitive groups"));
        QCOMPARE(text(card, "celsiusText"), QStringLiteral("28.0°C"));
        QStringList readings = targets.filter(QStringLiteral("php?lat="));
        readings.sort();
        QCOMPARE(readings,
                 QStringList({ QStringLiteral("/tarnelo/v1/airquality.php?lat=-4.0435&lon=39.6682"),
                               QStringLiteral("/tarnelo/v1/weatherapi.php?lat=-4.0435&lon=39.6682") }));
        QCOMPARE(targets.filter(QStringLiteral("locationlogs")), QStringList { log });

        m_responder.answer("/tarnelo/v1/weatherapi.php", 500, "not a list");
        card.setPlace(QVariant::fromValue(mombasa));
        QTRY_COMPARE(card.phase(), PlaceAirCardModel::Phase::Failed);
        QTest::qWait(200);
        QCOMPARE(m_responder.takeTargets().filter(QStringLiteral("locationlogs")), QStringList());
        SQliteLogin().deleteAll();
    }
};

QTEST_GUILESS_MAIN(DashboardPanelsTest)
#include "tst_dashboardpanels.moc"
