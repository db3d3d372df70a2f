// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackendClient.h"
#include "OpenMeteoStandIn.h"
#include "common/DevServerProcess.h"
#include "records/AirQualityData.h"
#include "records/JsonBody.h"
#include "records/WeatherData.h"
#include "service/BackendQuery.h"
#include "service/HttpGet.h"

#include <QElapsedTimer>
#include <QTest>

#include <ctime>
#include <memory>

namespace
{
constexpr std::int64_t hour = 3600;
constexpr std::int64_t week = 7 * 24 * hour;
} // namespace

// Real readings: the backend asks a stand-in for Open-Meteo on loopback, and the app reads
// the answers. The recordings give hand-computed indices: Berlin's PM2.5 averages 40.0 over
// the 24 hours to now (index 112, although this hour alone reads 63.0, "Unhealthy");
// Nairobi's PM10 averages 100 (index 73).
class DevServerUpstreamTest : public QObject
{
    Q_OBJECT

    OpenMeteoStandIn m_upstream;
    std::unique_ptr<DevServerProcess> m_server;
    std::unique_ptr<BackendClient> m_client;

    // The one record the app decodes from the script's answer for this place.
    template<typename Record> Record appReads(BackendScript script, const char *lat, const char *lon)
    {
        std::optional<HttpAnswer> answer;
        httpGet(requestUrl(backendRequestText(script, { { "lat", QString::fromLatin1(lat) }, { "lon", QString::fromLatin1(lon) } })), this,
                [&answer](const HttpAnswer &a) { answer = a; });
        if (!QTest::qWaitFor([&answer] { return answer.has_value(); }, 15000))
            return {};
        const QVector<Record> records = decodeList<Record>(answer->body).value.value_or(QVector<Record>());
        return records.size() == 1 ? records[0] : Record();
    }

    // A place's week of history ending weeksAgo weeks before now.
    nlohmann::json weekOfHistory(const char *lat, std::int64_t now, int weeksAgo)
    {
        const std::string start = std::to_string(now - (weeksAgo + 1) * week), end = std::to_string(now - weeksAgo * week);
        const std::string key = DevServerProcess::historyKey().toStdString();
        return history(*m_server, { { "lat", lat }, { "lon", "13.405" }, { "start", start }, { "end", end }, { "appid", key } })
            .body.value("list", nlohmann::json());
    }

    // The source in the console line of the request with this latitude.
    QString sourceOf(const char *lat)
    {
        const QString line = m_server->waitForConsoleLine(QStringLiteral("lat=%1&").arg(QLatin1String(lat)));
        return line.mid(line.lastIndexOf(QLatin1Char('[')));
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_server = std::make_unique<DevServerProcess>(
            QString(),
            m_upstream.backendOptions()
                + QStringList { QStringLiteral("--upstream-deadline"), QStringLiteral("1000"), QStringLiteral("--upstream-retry"), QStringLiteral("1") });
        QVERIFY2(m_server->isReady(), qPrintable(m_server->consoleLines().join(QLatin1Char('\n'))));
        qputenv("TARNELO_BACKEND_URL", m_server->backendUrl().toString().toUtf8());
        qputenv("TARNELO_CA_FILE", m_server->caFile().toUtf8());
        m_client = std::make_unique<BackendClient>(*m_server);
    }

    void readingsThroughTheAppsClient()
    {
        const AirQualityData berlin = appReads<AirQualityData>(BackendScript::AirQuality, "52.52", "13.405");
        QCOMPARE(QStringList({ berlin.aqi, berlin.pm25, berlin.pm10, berlin.no, berlin.nh3 }).join(QLatin1Char(' ')), QStringLiteral("3 63.00 21.50 – 4.10"));
        const WeatherData berlinWeather = appReads<WeatherData>(BackendScript::Weather, "52.52", "13.405");
        QCOMPARE(QStringList({ berlinWeather.temp, berlinWeather.humid, berlinWeather.wind, berlinWeather.uv, berlinWeather.pollen }).join(QLatin1Char(' ')),
                 QStringLiteral("300.65 64 11.2 1.2 Moderate"));
        QCOMPARE(sourceOf("52.52"), QStringLiteral("[open-meteo]"));
        // Outside Europe Open-Meteo knows no pollen and no ammonia.
        const AirQualityData nairobi = appReads<AirQualityData>(BackendScript::AirQuality, "-1.2864", "36.8172");
        QCOMPARE(QStringList({ nairobi.aqi, nairobi.pm10, nairobi.nh3 }).join(QLatin1Char(' ')), QStringLiteral("2 110.00 –"));
        const WeatherData nairobiWeather = appReads<WeatherData>(BackendScript::Weather, "-1.2864", "36.8172");
        QCOMPARE(QStringList({ nairobiWeather.temp, nairobiWeather.uv, nairobiWeather.pollen }).join(QLatin1Char(' ')), QStringLiteral("295.15 9.4 –"));
    }

    // OpenWeatherMap's hourly shape and 1-5 index from the upstream's past hours.
    void historyFromThePastHours()
    {
        const std::int64_t now = std::time(nullptr);
        const nlohmann::json list = weekOfHistory("52.51", now, 0);
        QCOMPARE(list.size(), size_t(now / hour - (now - week + hour - 1) / hour + 1));
        QCOMPARE(list.back().at("dt").get<std::int64_t>(), now / hour * hour);
        // The current hour's PM2.5 is 63 (poor), the 23 before it 39 (moderate), earlier ones 12 (fair).
        QCOMPARE(list.back().at("main").at("aqi").get<int>(), 4);
        QCOMPARE(list[list.size() - 2].at("main").at("aqi").get<int>(), 3);
        QCOMPARE(list.front().at("main").at("aqi").get<int>(), 2);
        QVERIFY(list.front().at("components").at("no").is_null());
        QCOMPARE(sourceOf("52.51").left(11), QStringLiteral("[open-meteo"));

        // Further back than the upstream's seven days: all simulated, still one entry an hour.
        QCOMPARE(weekOfHistory("52.53", now, 1).size(), size_t(7 * 24 + (now % hour == 0 ? 1 : 0)));
        QCOMPARE(sourceOf("52.53"), QStringLiteral("[simulated]"));
    }

    // A burst for one new place makes one upstream call; the hour's later requests none.
    void oneUpstreamCallPerPlaceAndHour()
    {
        const int before = m_upstream.calls();
        m_upstream.setBehaviour(OpenMeteoStandIn::Behaviour::Stall);
        QVector<QString> categories;
        for (int i = 0; i < 100; ++i)
            httpGet(requestUrl(backendRequestText(BackendScript::AirQuality, { { "lat", QStringLiteral("48.85") }, { "lon", QStringLiteral("2.35") } })), this,
                    [&categories](const HttpAnswer &a) {
                        categories.append(decodeList<AirQualityData>(a.body).value.value_or(QVector<AirQualityData>()).value(0).aqi);
                    });
        QTRY_COMPARE(m_upstream.calls(), before + 1);
        QTest::qWait(300); // let the burst pile up behind the stalled call
        m_upstream.setBehaviour(OpenMeteoStandIn::Behaviour::Recorded);
        QTRY_COMPARE_WITH_TIMEOUT(categories.size(), 100, 15000);
        QCOMPARE(categories.count(QStringLiteral("3")), 100);
        QCOMPARE(m_upstream.calls(), before + 1);
    }

    // A stalled upstream costs one request its deadline, then is left alone for
    // a while; an upstream answer without a field is never stored or used.
    void failingUpstreamFallsBackToSimulation()
    {
        m_upstream.setBehaviour(OpenMeteoStandIn::Behaviour::Stall);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(m_client->script("airquality.php", { { "lat", "40.41" }, { "lon", "-3.70" } }).first().is_object());
        QVERIFY2(timer.elapsed() >= 1000 && timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(sourceOf("40.41"), QStringLiteral("[simulated]"));
        const int calls = m_upstream.calls();
        timer.restart();
        m_client->script("airquality.php", { { "lat", "40.42" }, { "lon", "-3.70" } });
        QVERIFY2(timer.elapsed() < 500, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(m_upstream.calls(), calls);

        m_upstream.setBehaviour(OpenMeteoStandIn::Behaviour::MissingField);
        QTest::qWait(1100);
        QCOMPARE(field(m_client->script("weatherapi.php", { { "lat", "40.43" }, { "lon", "-3.70" } }).first(), "uv").contains(QLatin1Char('.')), true);
        QCOMPARE(sourceOf("40.43"), QStringLiteral("[simulated]"));
        QVERIFY(!m_server->waitForConsoleLine(QStringLiteral("has no \"temperature_2m\"")).isEmpty());

        m_upstream.setBehaviour(OpenMeteoStandIn::Behaviour::Recorded);
        QTest::qWait(1100);
        m_client->script("airquality.php", { { "lat", "40.44" }, { "lon", "-3.70" } });
        QCOMPARE(sourceOf("40.44"), QStringLiteral("[open-meteo]"));
    }
};

QTEST_GUILESS_MAIN(DevServerUpstreamTest)
#include "tst_devserver_upstream.moc"
