// SPDX-License-Identifier: GPL-3.0-or-later
// OpenWeatherMap's answers, whose readings are numbers.
#include "records/AQIResponse.h"
#include "records/JsonBody.h"
#include "records/MapPollutantModel.h"

#include <QTest>

namespace
{
QByteArray currentPollution(const char *dt, const char *pmKey = "pm2_5")
{
    return QByteArray(R"({"coord":{"lon":-0.1278,"lat":51.5074},"list":[{"main":{"aqi":2},"components":{"co":201.94,"no":0,"no2":3.5,"o3":68.66,"so2":0.64,")")
        + pmKey + R"(":4.2,"pm10":5.1,"nh3":0.9},"dt":)" + dt + "}]}";
}
} // namespace

class PollutionRecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void currentPollutionIsNumericAndRoundTrips()
    {
        const auto decoded = decodeObject<MapPollutantModel>(currentPollution("1606223802"));
        QVERIFY2(decoded.ok(), qPrintable(decoded.error));
        QCOMPARE(decoded.value->coord.lon, -0.1278);
        const AirQuality &reading = decoded.value->list.first();
        QCOMPARE(reading.main.aqi, 2);
        QCOMPARE(reading.components.pm2_5, 4.2);
        QCOMPARE(reading.dt, 1606223802);

        QCOMPARE(decoded.value->toJson(), QJsonDocument::fromJson(currentPollution("1606223802")).object());

        QVERIFY(decodeObject<MapPollutantModel>(currentPollution("1606223802.5")).error.contains(QLatin1String("\"dt\"")));
        QVERIFY(!decodeObject<MapPollutantModel>(currentPollution("1606223802", "pm25")).ok());
        QVERIFY(!decodeObject<MapPollutantModel>(QByteArray(R"({"coord":{"lon":"-0.1","lat":51},"list":[]})")).ok());
    }

    void historyEntriesAcceptEitherTimeForm()
    {
        const auto history = decodeObject<AQIResponse>(
            R"({"coord":[50,50],"list":[{"main":{"aqi":3},"components":{"co":1},"dt":1606482000},{"main":{"aqi":1},"dt":1606485600.5}]})");
        QVERIFY2(history.ok(), qPrintable(history.error));
        QCOMPARE(history.value->list.at(0).dt, 1606482000.0);
        const auto again = decodeObject<AQIResponse>(QJsonDocument(history.value->toJson()).toJson());
        QVERIFY(again.ok());
        QCOMPARE(again.value->list.size(), 2);
        QCOMPARE(again.value->list.at(1).dt, 1606485600.5);
        QCOMPARE(again.value->list.at(1).main.aqi, 1);

        QVERIFY(!decodeObject<AQIResponse>(R"({"list":[{"main":{"aqi":2.5},"dt":1}]})").ok());
        QVERIFY(!decodeObject<AQIResponse>(R"({"cod":401,"message":"Invalid API key."})").ok());
        QVERIFY(decodeObject<AQIResponse>(R"({"list":[]})").value->list.isEmpty());
    }
};

QTEST_GUILESS_MAIN(PollutionRecordsTest)
#include "tst_pollutionrecords.moc"
