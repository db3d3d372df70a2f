// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackendClient.h"
#include "common/DevServerProcess.h"
#include "server/AqiScale.h"

#include <QRegularExpression>
#include <QTest>

#include <limits>
#include <memory>

namespace
{
constexpr std::int64_t newYear2026 = 1767225600; // 2026-01-01 00:00 UTC
constexpr std::int64_t week = 7 * 24 * 3600;

Pollutants pollutantsFromText(const nlohmann::json &record)
{
    const auto number = [&record](const char *key) { return field(record, key).toDouble(); };
    Pollutants p;
    p.co = number("co"), p.no = number("no"), p.no2 = number("no2"), p.o3 = number("o3");
    p.so2 = number("so2"), p.pm25 = number("pm25"), p.pm10 = number("pm10"), p.nh3 = number("nh3");
    return p;
}

Pollutants pollutantsFromNumbers(const nlohmann::json &components)
{
    const auto number = [&components](const char *key) { return components.at(key).get<double>(); };
    Pollutants p;
    p.co = number("co"), p.no = number("no"), p.no2 = number("no2"), p.o3 = number("o3");
    p.so2 = number("so2"), p.pm25 = number("pm2_5"), p.pm10 = number("pm10"), p.nh3 = number("nh3");
    return p;
}

httplib::Params historyQuery(std::int64_t start, std::int64_t end, const std::string &appid)
{
    return { { "lat", "28.61" }, { "lon", "77.21" }, { "start", std::to_string(start) }, { "end", std::to_string(end) }, { "appid", appid } };
}
} // namespace

// Air quality, weather and history: values that fit together and repeat.
class DevServerReadingsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<DevServerProcess> m_server;
    std::unique_ptr<BackendClient> m_client;

private Q_SLOTS:
    void initTestCase()
    {
        m_server = std::make_unique<DevServerProcess>();
        QVERIFY2(m_server->isReady(), qPrintable(m_server->consoleLines().join(QLatin1Char('\n'))));
        m_client = std::make_unique<BackendClient>(*m_server);
    }

    // The category is the EPA's for exactly the concentrations in the answer;
    // that they repeat within a cell and hour is tst_air_scale's.
    void airQualityAgreesWithItsConcentrations()
    {
        const QRegularExpression decimal(QStringLiteral("^\\d+\\.\\d\\d$"));
        const std::pair<const char *, const char *> places[]
            = { { "51.5", "-0.12" }, { "28.61", "77.21" }, { "39.9", "116.4" }, { "0", "-160" }, { "-89.9", "0" } };
        for (const auto &[lat, lon] : places) {
            const nlohmann::json air = m_client->script("airquality.php", { { "lat", lat }, { "lon", lon } }).first();
            for (const char *key : { "co", "no", "no2", "o3", "so2", "pm25", "pm10", "nh3" })
                QVERIFY2(field(air, key).contains(decimal), qPrintable(dumped(air)));
            QCOMPARE(field(air, "aqi"), QString::number(usEpaCategory(pollutantsFromText(air))));
        }
    }

    // Whole hours from start to end, both ends included when on the hour.
    void historyHasOneEntryPerHour()
    {
        const Answer answer = history(*m_server, historyQuery(newYear2026, newYear2026 + week, DevServerProcess::historyKey().toStdString()));
        QCOMPARE(answer.status, 200);
        const nlohmann::json &list = answer.body.at("list");
        QCOMPARE(list.size(), size_t(7 * 24 + 1));
        QCOMPARE(answer.body.at("coord").at("lat").get<double>(), 28.61);
        for (size_t i = 0; i < list.size(); ++i) {
            QCOMPARE(list[i].at("dt").get<std::int64_t>(), newYear2026 + std::int64_t(i) * 3600);
            const nlohmann::json &components = list[i].at("components");
            QVERIFY(components.size() == 8 && std::all_of(components.begin(), components.end(), [](const nlohmann::json &v) { return v.is_number(); }));
            QCOMPARE(list[i].at("main").at("aqi").get<int>(), openWeatherIndex(pollutantsFromNumbers(components)));
        }
        const Answer offTheHour = history(*m_server, historyQuery(newYear2026 + 1, newYear2026 + week, DevServerProcess::historyKey().toStdString()));
        QCOMPARE(offTheHour.body.at("list").size(), size_t(7 * 24));
        QCOMPARE(offTheHour.body.at("list").front().at("dt").get<std::int64_t>(), newYear2026 + 3600);
    }

    void historyRefusesLikeTheRealService()
    {
        const std::string key = DevServerProcess::historyKey().toStdString();
        const Answer wrongKey = history(*m_server, historyQuery(newYear2026, newYear2026 + 3600, "not-the-key"));
        QCOMPARE(wrongKey.status, 401);
        QCOMPARE(wrongKey.body.at("cod").get<int>(), 401);
        QCOMPARE(QString::fromStdString(wrongKey.body.at("message").get<std::string>()),
                 QLatin1String("Invalid API key. Please see https://openweathermap.org/faq#error401 for more info."));

        const std::vector<httplib::Params> badQueries { historyQuery(newYear2026, newYear2026 - 1, key),
                                                        historyQuery(newYear2026, newYear2026 + 366 * 24 * 3600, key),
                                                        historyQuery(std::numeric_limits<std::int64_t>::max() - 1, std::numeric_limits<std::int64_t>::max(),
                                                                     key),
                                                        { { "lat", "28.61" }, { "lon", "77.21" }, { "start", "0" }, { "appid", key } },
                                                        { { "lat", "north" }, { "lon", "77.21" }, { "start", "0" }, { "end", "1" }, { "appid", key } } };
        for (const httplib::Params &query : badQueries) {
            const Answer refused = history(*m_server, query);
            QCOMPARE(refused.status, 400);
            QVERIFY2(refused.body.at("cod") == "400" && refused.body.at("message").is_string(), qPrintable(dumped(refused.body)));
        }
    }
};

QTEST_GUILESS_MAIN(DevServerReadingsTest)
#include "tst_devserver_readings.moc"
