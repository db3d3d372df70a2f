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
// The keys of every account answer, accepted or refused.
const std::vector<std::string> loginModel { "userid", "fullname",     "phonenumber", "emailaddress",   "dateofbirth",
                                            "gender", "registerdate", "scode",       "messageresponse" };
constexpr std::int64_t newYear2026 = 1767225600; // 2026-01-01 00:00 UTC
constexpr std::int64_t week = 7 * 24 * 3600;

// The eight concentrations of a record: as text in the scripts' answers, as numbers in history's.
Pollutants pollutants(const nlohmann::json &record, const char *pm25Key)
{
    const auto number = [&record](const char *key) { return record.at(key).is_string() ? field(record, key).toDouble() : record.at(key).get<double>(); };
    return { number("co"), number("no"), number("no2"), number("o3"), number("so2"), number(pm25Key), number("pm10"), number("nh3") };
}

httplib::Params historyQuery(std::int64_t start, std::int64_t end, const std::string &appid = DevServerProcess::historyKey().toStdString())
{
    return { { "lat", "28.61" }, { "lon", "77.21" }, { "start", std::to_string(start) }, { "end", std::to_string(end) }, { "appid", appid } };
}
} // namespace

// What every answer looks like, for good input and bad, as the app decodes it,
// and readings that fit together.
class DevServerContractTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<DevServerProcess> m_server;
    std::unique_ptr<BackendClient> m_client;
    std::string m_userId;

private Q_SLOTS:
    void initTestCase()
    {
        m_server = std::make_unique<DevServerProcess>();
        QVERIFY2(m_server->isReady(), qPrintable(m_server->consoleLines().join(QLatin1Char('\n'))));
        m_client = std::make_unique<BackendClient>(*m_server);
        m_client->script("register.php", { { "fullname", "Rosalind Franklin" }, { "emailaddress", "rosalind@example.test" }, { "password", "Photo-51" } });
        m_userId
            = field(m_client->script("login.php", { { "username", "rosalind@example.test" }, { "passcode", "Photo-51" } }).first(), "userid").toStdString();
    }

    // Scripts the app decodes as LoginModel get a refused one naming the
    // problem; those it decodes as lists of other records get [] and the
    // console names the problem. Never a 500 or a body the app cannot read.
    void badInputIsRefusedWithJson_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message"); // the refusal's message, or for a list the console line
        const auto row = [](const char *name, const std::string &target, int status, const char *message) {
            QTest::newRow(name) << QString::fromStdString("/tarnelo/v1/" + target) << status << QString::fromUtf8(message);
        };
        const auto listRow = [](const char *name, const std::string &target, const char *reason) {
            QTest::newRow(name) << QString::fromStdString("/tarnelo/v1/" + target) << 200
                                << QString::fromStdString("Refused " + target.substr(0, target.find('?')) + ": " + reason);
        };
        row("missing", "login.php?username=a%40b.test", 200, "Missing parameter: passcode");
        row("empty", "register.php?fullname=&emailaddress=a%40b.test&password=x", 200, "Missing parameter: fullname");
        row("too long", "feedbacks.php?userid=1&feedback=" + std::string(256, 'a'), 200, "Parameter too long: feedback");
        row("invalid UTF-8", "login.php?username=%FF&passcode=x", 200, "Invalid UTF-8 in parameter: username");
        row("overlong UTF-8", "login.php?username=%C0%AF&passcode=x", 200, "Invalid UTF-8 in parameter: username");
        // The address is printed on the console: a line break would forge a line.
        row("line break in e-mail", "resetpass.php?emailaddress=x%0Aforged%40b.test", 200, "Malformed parameter: emailaddress");
        row("not an e-mail", "register.php?fullname=A&emailaddress=a.test&password=x", 200, "Malformed parameter: emailaddress");
        row("no such day", "register.php?fullname=A&emailaddress=a%40b.test&password=x&dateofbirth=2023-02-30", 200, "Malformed parameter: dateofbirth");
        row("gender", "register.php?fullname=A&emailaddress=a%40b.test&password=x&gender=4", 200, "Malformed parameter: gender");
        row("row id for a session", "feedbacks.php?userid=1&feedback=hi", 200, "Your session has ended. Please log in again.");
        listRow("unknown session", "checksubscription.php?userid=12abc", "Your session has ended. Please log in again.");
        listRow("latitude range", "airquality.php?lat=90.5&lon=0", "Malformed parameter: lat");
        listRow("longitude text", "weatherapi.php?lat=1&lon=east", "Malformed parameter: lon");
        listRow("longitude nan", "airquality.php?lat=1&lon=nan", "Malformed parameter: lon");
        // The reason quotes the request: its line break must not forge a line.
        listRow("line break in a name", "checkmedical.php?userid=x&a%0Aforged=%FF", "Invalid UTF-8 in parameter: a%0Aforged");
        row("unknown script", "nosuch.php?userid=1", 404, "Unknown script: nosuch.php");
        row("no script", "", 404, "Nothing is served at /tarnelo/v1/");
    }

    void badInputIsRefusedWithJson()
    {
        QFETCH(QString, target);
        QFETCH(int, status);
        QFETCH(QString, message);
        const Answer answer = m_client->raw(target.toStdString());
        QCOMPARE(answer.status, status);
        if (message.startsWith(QLatin1String("Refused "))) {
            QCOMPARE(dumped(answer.body), QLatin1String("[]"));
            QVERIFY2(!m_server->waitForConsoleLine(message).isEmpty(), qPrintable(message));
            return;
        }
        QVERIFY2(answer.body.is_array() && answer.body.size() == 1, qPrintable(dumped(answer.body)));
        const nlohmann::json record = answer.first();
        QCOMPARE(record.size(), loginModel.size());
        QCOMPARE(field(record, "scode"), QLatin1String("0"));
        QCOMPARE(field(record, "userid"), QString());
        QVERIFY2(field(record, "messageresponse").startsWith(message), qPrintable(field(record, "messageresponse")));
    }

    // Limits count characters, not bytes.
    void acceptedEdgeCases()
    {
        QString accented(255, QChar(0xE9));
        const Answer longest = m_client->script("feedbacks.php", { { "userid", m_userId }, { "feedback", accented.toStdString() } });
        QCOMPARE(field(longest.first(), "scode"), QLatin1String("1"));
    }

    // Every request gets a line, and no credential appears in any of them:
    // passwords, session tokens, the history key.
    void consoleLinesHideSecrets()
    {
        m_client->script("login.php", { { "username", "rosalind@example.test" }, { "passcode", "Secret-Passcode-7" } });
        // Masking goes by the decoded key.
        m_client->raw("/tarnelo/v1/register.php?fullname=X&emailaddress=x%40example.test&pass%77ord=Secret-Password-8");
        QVERIFY(!m_server->waitForConsoleLine(QStringLiteral("login.php?passcode=***&username=rosalind")).isEmpty());
        QVERIFY(!m_server->waitForConsoleLine(QStringLiteral("pass%77ord=*** -> 200")).isEmpty());
        m_client->script("airquality.php", { { "lat", "51.5" }, { "lon", "-0.12" } });
        QVERIFY(m_server->waitForConsoleLine(QStringLiteral("GET /tarnelo/v1/airquality.php?lat=51.5&lon=-0.12 ")).endsWith(QLatin1String("[simulated]")));
        m_client->script("notification.php", { { "userid", m_userId } });
        QVERIFY(!m_server->waitForConsoleLine(QStringLiteral("notification.php?userid=*** -> 200")).isEmpty());
        history(*m_server, { { "lat", "1" }, { "lon", "2" }, { "start", "0" }, { "end", "0" }, { "appid", DevServerProcess::historyKey().toStdString() } });
        QVERIFY(!m_server->waitForConsoleLine(QStringLiteral("history?appid=***&end=0")).isEmpty());
        const QStringList lines = m_server->consoleLines();
        QVERIFY(lines.first().startsWith(QLatin1String("Tarnelo development backend ready: https=")));
        for (const QString &line : lines)
            for (const QString &secret :
                 { QStringLiteral("Secret-Pass"), QStringLiteral("Photo-51"), QString::fromStdString(m_userId), DevServerProcess::historyKey() })
                QVERIFY2(!line.contains(secret), qPrintable(line));
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
            QCOMPARE(field(air, "aqi"), QString::number(usEpaCategory(pollutants(air, "pm25"))));
        }
    }

    // Whole hours from start to end, both ends included when on the hour.
    void historyHasOneEntryPerHour()
    {
        const Answer answer = history(*m_server, historyQuery(newYear2026, newYear2026 + week));
        QCOMPARE(answer.status, 200);
        const nlohmann::json &list = answer.body.at("list");
        QCOMPARE(list.size(), size_t(7 * 24 + 1));
        QCOMPARE(answer.body.at("coord").at("lat").get<double>(), 28.61);
        for (size_t i = 0; i < list.size(); ++i) {
            QCOMPARE(list[i].at("dt").get<std::int64_t>(), newYear2026 + std::int64_t(i) * 3600);
            const nlohmann::json &components = list[i].at("components");
            QVERIFY(components.size() == 8 && std::all_of(components.begin(), components.end(), [](const nlohmann::json &v) { return v.is_number(); }));
            QCOMPARE(list[i].at("main").at("aqi").get<int>(), openWeatherIndex(pollutants(components, "pm2_5")));
        }
        const Answer offTheHour = history(*m_server, historyQuery(newYear2026 + 1, newYear2026 + week));
        QCOMPARE(offTheHour.body.at("list").size(), size_t(7 * 24));
        QCOMPARE(offTheHour.body.at("list").front().at("dt").get<std::int64_t>(), newYear2026 + 3600);
    }

    void historyRefusesLikeTheRealService()
    {
        const Answer wrongKey = history(*m_server, historyQuery(newYear2026, newYear2026 + 3600, "not-the-key"));
        QCOMPARE(wrongKey.status, 401);
        QCOMPARE(wrongKey.body.at("cod").get<int>(), 401);
        QCOMPARE(QString::fromStdString(wrongKey.body.at("message").get<std::string>()),
                 QLatin1String("Invalid API key. Please see https://openweathermap.org/faq#error401 for more info."));

        const std::int64_t last = std::numeric_limits<std::int64_t>::max();
        httplib::Params noEnd = historyQuery(0, 0), badLatitude = historyQuery(0, 1);
        noEnd.erase("end");
        badLatitude.find("lat")->second = "north";
        for (const httplib::Params &query : { historyQuery(newYear2026, newYear2026 - 1), historyQuery(newYear2026, newYear2026 + 366 * 24 * 3600),
                                              historyQuery(last - 1, last), noEnd, badLatitude }) {
            const Answer refused = history(*m_server, query);
            QCOMPARE(refused.status, 400);
            QVERIFY2(refused.body.at("cod") == "400" && refused.body.at("message").is_string(), qPrintable(dumped(refused.body)));
        }
    }
};

QTEST_GUILESS_MAIN(DevServerContractTest)
#include "tst_devserver_contract.moc"
