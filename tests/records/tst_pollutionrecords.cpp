// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/AQIResponse.h"
#include "records/AirQualityData.h"
#include "records/JsonBody.h"
#include "records/MapPollutantModel.h"
#include "records/WeatherData.h"

#include <QTest>

namespace
{
QByteArray airQualityAnswer(const char *aqiJson, const char *pmKey = "pm25")
{
    return QByteArray(R"([{"id":"7","aqi":)") + aqiJson + R"(,"co":"201.9","no":"0.1","no2":"3.5","o3":"68.7","so2":"0.6",")" + pmKey
        + R"(":"4.2","pm10":"5.1","nh3":"0.9","extra":1}])";
}

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
    void backendReadingsAreText()
    {
        const auto accepted = decodeList<AirQualityData>(airQualityAnswer(R"("4")"));
        QVERIFY2(accepted.ok(), qPrintable(accepted.error));
        const AirQualityData &reading = accepted.value->first();
        QCOMPARE(
            QStringList({ reading.id, reading.aqi, reading.co, reading.no, reading.no2, reading.o3, reading.so2, reading.pm25, reading.pm10, reading.nh3 }),
            QStringLiteral("7 4 201.9 0.1 3.5 68.7 0.6 4.2 5.1 0.9").split(QLatin1Char(' ')));

        const auto numeric = decodeList<AirQualityData>(airQualityAnswer("42"));
        QVERIFY(!numeric.ok());
        QVERIFY2(numeric.error.contains(QLatin1String("\"aqi\"")), qPrintable(numeric.error));
        const auto owmKey = decodeList<AirQualityData>(airQualityAnswer(R"("4")", "pm2_5"));
        QVERIFY(!owmKey.ok());
        QVERIFY2(owmKey.error.contains(QLatin1String("\"pm25\"")), qPrintable(owmKey.error));
    }

    void weatherReadingsAreText()
    {
        const auto weather = decodeList<WeatherData>(R"([{"id":"1","temp":"300.65","humid":"40","wind":"12","uv":"5","pollen":"Low"}])");
        QVERIFY2(weather.ok(), qPrintable(weather.error));
        QCOMPARE(weather.value->first().temp, QStringLiteral("300.65"));
        QCOMPARE(weather.value->first().pollen, QStringLiteral("Low"));
        QVERIFY(!decodeList<WeatherData>(R"([{"id":"1","temp":300.65,"humid":"40","wind":"12","uv":"5","pollen":"Low"}])").ok());
        QVERIFY(!decodeList<WeatherData>(R"([{"id":"1","temp":"300.65","humid":"40","wind":"12","uv":"5","pollen":null}])").ok());
    }

    void currentPollutionIsNumericAndRoundTrips()
    {
        const auto decoded = decodeObject<MapPollutantModel>(currentPollution("1606223802"));
        QVERIFY2(decoded.ok(), qPrintable(decoded.error));
        QCOMPARE(decoded.value->coord.lon, -0.1278);
        QCOMPARE(decoded.value->coord.lat, 51.5074);
        const AirQuality &reading = decoded.value->list.first();
        QCOMPARE(reading.main.aqi, 2);
        QCOMPARE(reading.components.co, 201.94);
        QCOMPARE(reading.components.pm2_5, 4.2);
        QCOMPARE(reading.components.nh3, 0.9);
        QCOMPARE(reading.dt, 1606223802);

        const QJsonObject encoded = decoded.value->toJson();
        QCOMPARE(encoded, QJsonDocument::fromJson(currentPollution("1606223802")).object());

        const auto fractional = decodeObject<MapPollutantModel>(currentPollution("1606223802.5"));
        QVERIFY(!fractional.ok());
        QVERIFY2(fractional.error.contains(QLatin1String("\"dt\"")), qPrintable(fractional.error));
        QVERIFY(!decodeObject<MapPollutantModel>(currentPollution("1606223802", "pm25")).ok());
        QVERIFY(!decodeObject<MapPollutantModel>(QByteArray(R"({"coord":{"lon":"-0.1","lat":51},"list":[]})")).ok());
        QVERIFY(!decodeList<AirQualityData>(currentPollution("1")).ok());
    }

    void historyEntriesAcceptEitherTimeForm()
    {
        const auto history = decodeObject<AQIResponse>(
            R"({"coord":[50,50],"list":[{"main":{"aqi":3},"components":{"co":1},"dt":1606482000},{"main":{"aqi":1},"dt":1606485600.5}]})");
        QVERIFY2(history.ok(), qPrintable(history.error));
        QCOMPARE(history.value->list.size(), 2);
        QCOMPARE(history.value->list.at(0).main.aqi, 3);
        QCOMPARE(history.value->list.at(0).dt, 1606482000.0);
        QCOMPARE(history.value->list.at(1).dt, 1606485600.5);

        const auto again = decodeObject<AQIResponse>(QJsonDocument(history.value->toJson()).toJson());
        QVERIFY(again.ok());
        QCOMPARE(again.value->list.at(1).dt, 1606485600.5);
        QCOMPARE(again.value->list.at(1).main.aqi, 1);

        QVERIFY(!decodeObject<AQIResponse>(R"({"list":[{"main":{"aqi":2.5},"dt":1}]})").ok());
        QVERIFY(!decodeObject<AQIResponse>(R"({"cod":401,"message":"Invalid API key."})").ok());
        QVERIFY(decodeObject<AQIResponse>(R"({"list":[]})").value->list.isEmpty());
    }
};

QTEST_GUILESS_MAIN(PollutionRecordsTest)
#include "tst_pollutionrecords.moc"
