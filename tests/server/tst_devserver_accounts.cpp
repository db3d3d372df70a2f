// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackendClient.h"
#include "common/DevServerProcess.h"
#include "server/AqiScale.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <limits>
#include <memory>
#include <sqlite3.h>
#include <sys/stat.h>
#include <thread>

namespace
{
const QLatin1String wrongCredentials("Incorrect email address or password.");
constexpr std::int64_t newYear2026 = 1767225600; // 2026-01-01 00:00 UTC
constexpr std::int64_t hour = 3600;

// The eight concentrations of a history entry.
Pollutants pollutants(const nlohmann::json &components)
{
    const auto number = [&components](const char *key) { return components.at(key).get<double>(); };
    return { number("co"), number("no"), number("no2"), number("o3"), number("so2"), number("pm2_5"), number("pm10"), number("nh3") };
}

httplib::Params historyQuery(std::int64_t start, std::int64_t end, const std::string &appid = DevServerProcess::historyKey().toStdString())
{
    return { { "lat", "28.61" }, { "lon", "77.21" }, { "start", std::to_string(start) }, { "end", std::to_string(end) }, { "appid", appid } };
}

httplib::Params registration(const std::string &email, const std::string &password)
{
    return {
        { "fullname", "Ada Lovelace" },  { "emailaddress", email }, { "phonenumber", "+44 20 0000 0001" },
        { "dateofbirth", "1815-12-10" }, { "password", password },  { "gender", "2" },
    };
}

// Every field holds its own name, so that a field stored in another's place shows.
httplib::Params medicalProfile(const std::string &userId, const std::string &condition)
{
    httplib::Params profile { { "userid", userId } };
    for (const char *key :
         { "conditionstatus", "conditionname", "emergencycontact", "phonenumber", "relationship", "weight", "height", "smokerstatus", "smoker", "moredetails" })
        profile.emplace(key, condition + " " + key);
    return profile;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A single number from the server's database file, read beside the running server; -1 if none.
qint64 queryNumber(const QString &dataDir, const char *sql)
{
    const QByteArray path = QFile::encodeName(QDir(dataDir).filePath(QStringLiteral("devserver.sqlite")));
    sqlite3 *db = nullptr;
    qint64 number = -1;
    sqlite3_open_v2(path.constData(), &db, SQLITE_OPEN_READONLY, nullptr);
    const auto keepFirst = [](void *out, int, char **values, char **) {
        *static_cast<qint64 *>(out) = values[0] ? std::atoll(values[0]) : -1;
        return 0;
    };
    sqlite3_exec(db, sql, keepFirst, &number, nullptr);
    sqlite3_close(db);
    return number;
}
} // namespace

// The backend as the app meets it, a process over HTTPS: accounts, answers
// the app can decode for good input and bad, and what it keeps secret.
class DevServerAccountsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<DevServerProcess> m_server;
    std::unique_ptr<BackendClient> m_client;
    int m_clientsMade = 0;
    // Passwords and session tokens, which neither the database nor the console may hold.
    std::vector<std::string> m_secrets;

    nlohmann::json registerUser(const std::string &email, const std::string &password)
    {
        m_secrets.push_back(password);
        return m_client->script("register.php", registration(email, password)).first();
    }

    nlohmann::json login(const std::string &email, const std::string &password, BackendClient *client = nullptr)
    {
        return (client ? client : m_client.get())->script("login.php", { { "username", email }, { "passcode", password } }).first();
    }

    std::string token(const std::string &email, const std::string &password)
    {
        m_secrets.push_back(field(login(email, password), "userid").toStdString());
        return m_secrets.back();
    }

    // Another client, as the server tells them apart: by address.
    std::unique_ptr<BackendClient> newClient() { return std::make_unique<BackendClient>(*m_server, "127.0.1." + std::to_string(++m_clientsMade)); }

private Q_SLOTS:
    void initTestCase()
    {
        m_server = std::make_unique<DevServerProcess>(
            QString(), QStringList { QStringLiteral("--print-reset-passwords"), QStringLiteral("--throttle-delay"), QStringLiteral("1") });
        QVERIFY2(m_server->isReady(), qPrintable(m_server->consoleLines().join(QLatin1Char('\n'))));
    }

    // Each case is a client of its own, so that one case's failed logins do not hold back the next.
    void init() { m_client = newClient(); }

    // One account through register, login, update, the medical profile and
    // logout, each answer carrying what the previous step stored.
    void accountRoundTrip()
    {
        const nlohmann::json registered = registerUser("ada@example.test", "Analytical-Engine-1843");
        QCOMPARE(field(registered, "scode"), QLatin1String("1"));
        QCOMPARE(field(registered, "userid"), QString());
        QCOMPARE(field(registered, "dateofbirth"), QLatin1String("1815-12-10"));
        QVERIFY(field(registered, "registerdate").contains(QRegularExpression(QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d$"))));
        const nlohmann::json loggedIn = login("ada@example.test", "Analytical-Engine-1843");
        QVERIFY(field(loggedIn, "userid").contains(QRegularExpression(QStringLiteral("^[0-9a-f]{32}$"))));
        for (const char *key : { "fullname", "phonenumber", "emailaddress", "dateofbirth", "gender", "registerdate" })
            QCOMPARE(field(loggedIn, key), field(registered, key));

        const std::string userId = token("ada@example.test", "Analytical-Engine-1843");
        const httplib::Params update {
            { "fullname", "Augusta Ada King" }, { "emailaddress", "augusta@example.test" }, { "dateofbirth", "1815-12-11" }, { "userid", userId }
        };
        QCOMPARE(field(m_client->script("updateuser.php", update).first(), "dateofbirth"), QLatin1String("1815-12-11"));
        QCOMPARE(field(login("augusta@example.test", "Analytical-Engine-1843"), "fullname"), QLatin1String("Augusta Ada King"));
        QCOMPARE(field(login("ada@example.test", "Analytical-Engine-1843"), "scode"), QLatin1String("0"));

        httplib::Params medical = medicalProfile(userId, "Asthma");
        QCOMPARE(field(m_client->script("savemedical.php", medical).first(), "scode"), QLatin1String("1"));
        // Saving again replaces the profile rather than adding a second one.
        medical.find("weight")->second = "56";
        QCOMPARE(field(m_client->script("savemedical.php", medical).first(), "scode"), QLatin1String("1"));
        const Answer details = m_client->script("checkmedicaldetails.php", { { "userid", userId } });
        QCOMPARE(details.body.size(), size_t(1));
        for (const auto &[key, value] : medical)
            if (key != "userid")
                QCOMPARE(field(details.first(), key.c_str()), QString::fromStdString(value));

        // Limits count characters, not bytes.
        const std::string longestFeedback = QString(255, QChar(0xE9)).toStdString();
        QCOMPARE(field(m_client->script("feedbacks.php", { { "userid", userId }, { "feedback", longestFeedback } }).first(), "scode"), QLatin1String("1"));

        // Logout ends the one session it names.
        QCOMPARE(field(m_client->script("logout.php", { { "userid", userId } }).first(), "scode"), QLatin1String("1"));
        QCOMPARE(dumped(m_client->script("checkmedicaldetails.php", { { "userid", userId } }).body), QLatin1String("[]"));
        QCOMPARE(m_client->script("checkmedicaldetails.php", { { "userid", field(loggedIn, "userid").toStdString() } }).body.size(), size_t(1));
    }

    void resetReplacesThePasswordWithoutAnsweringIt()
    {
        registerUser("hamilton@example.test", "Apollo-1969");
        const Answer known = m_client->script("resetpass.php", { { "emailaddress", "hamilton@example.test" } });
        QCOMPARE(field(known.first(), "scode"), QLatin1String("1"));
        const QString line = m_server->waitForConsoleLine(QStringLiteral("Password reset for hamilton@example.test: "));
        const std::string newPassword = line.section(QStringLiteral(": "), 1).toStdString();
        QCOMPARE(newPassword.size(), size_t(12));
        m_secrets.push_back(newPassword);
        QVERIFY(known.body.dump().find(newPassword) == std::string::npos);

        QCOMPARE(field(login("hamilton@example.test", "Apollo-1969"), "scode"), QLatin1String("0"));
        QCOMPARE(field(login("hamilton@example.test", newPassword), "scode"), QLatin1String("1"));

        // An unknown address gets the very same answer, and nothing changes.
        const Answer unknown = m_client->script("resetpass.php", { { "emailaddress", "stranger@example.test" } });
        QCOMPARE(dumped(unknown.body), dumped(known.body));
        QVERIFY(!m_server->waitForConsoleLine(QStringLiteral("stranger@example.test, which has no account")).isEmpty());
    }

    // A token opens its own account only, and a row id guessed from the
    // sequence opens none, for every script that takes a user.
    void othersDataIsOutOfReach()
    {
        registerUser("alice@example.test", "Alice-Pass-1");
        registerUser("bob@example.test", "Bob-Pass-1");
        const std::string alice = token("alice@example.test", "Alice-Pass-1");
        const std::string bob = token("bob@example.test", "Bob-Pass-1");
        QCOMPARE(field(m_client->script("savemedical.php", medicalProfile(bob, "Asthma")).first(), "scode"), QLatin1String("1"));

        for (const char *list : { "checkmedicaldetails.php", "checkmedical.php" })
            QCOMPARE(dumped(m_client->script(list, { { "userid", alice } }).body), QLatin1String("[]"));

        const std::string bobsRow = std::to_string(queryNumber(m_server->dataDir(), "SELECT id FROM users WHERE email = 'bob@example.test'"));
        for (const char *list : { "checkmedicaldetails.php", "checkmedical.php", "checksubscription.php", "notification.php" })
            QCOMPARE(dumped(m_client->script(list, { { "userid", bobsRow } }).body), QLatin1String("[]"));
        const std::pair<const char *, httplib::Params> writes[] = {
            { "savemedical.php", medicalProfile(bobsRow, "None") },
            { "feedbacks.php", { { "userid", bobsRow }, { "feedback", "Not Bob" } } },
            { "locationlogs.php", { { "user_id", bobsRow }, { "txt_lat", "1" }, { "txt_log", "2" } } },
            { "updateuser.php", { { "userid", bobsRow }, { "fullname", "Mallory" }, { "emailaddress", "mallory@example.test" } } },
            { "logout.php", { { "userid", bobsRow } } },
        };
        for (const auto &[script, params] : writes)
            QCOMPARE(field(m_client->script(script, params).first(), "messageresponse"), QLatin1String("Your session has ended. Please log in again."));
    }

    // A wrong password and an unknown address get the same answer. After five failures for an
    // address even its right password waits, from any client, until the delay (1 s) has passed.
    void loginWaitsAfterFiveFailures()
    {
        registerUser("knuth@example.test", "TeX-1978");
        const std::unique_ptr<BackendClient> elsewhere = newClient();
        const nlohmann::json wrongPassword = login("knuth@example.test", "tex-1978");
        QCOMPARE(field(wrongPassword, "scode"), QLatin1String("0"));
        QCOMPARE(field(wrongPassword, "messageresponse"), wrongCredentials);
        QCOMPARE(dumped(login("nobody@example.test", "TeX-1978", elsewhere.get())), dumped(wrongPassword));
        for (int i = 0; i < 4; ++i)
            QCOMPARE(field(login("KNUTH@example.test", "MetaFont"), "messageresponse"), wrongCredentials);
        QVERIFY(field(login("knuth@example.test", "TeX-1978"), "messageresponse").startsWith(QLatin1String("Too many attempts. Please wait 1 second ")));
        QCOMPARE(field(login("knuth@example.test", "TeX-1978", elsewhere.get()), "scode"), QLatin1String("0"));
        QTest::qSleep(1100);
        QCOMPARE(field(login("knuth@example.test", "TeX-1978", elsewhere.get()), "scode"), QLatin1String("1"));
        // The success cleared the address's count: a slip is an ordinary failure again.
        QCOMPARE(field(login("knuth@example.test", "MetaFont", elsewhere.get()), "messageresponse"), wrongCredentials);
    }

    // An address is taken in every letter case, by registering and by updating. The refusal
    // does not say so, but counts as a failure: a client's failures count across addresses.
    void takenAddressIsRefusedAndCounted()
    {
        registerUser("grace@example.test", "Cobol-1959");
        registerUser("hopper@example.test", "Mark-II-1947");
        const std::string hopper = token("hopper@example.test", "Mark-II-1947");
        for (const char *email : { "guess1@example.test", "guess2@example.test", "guess3@example.test" })
            QCOMPARE(field(login(email, "Cobol-1959"), "messageresponse"), wrongCredentials);
        QCOMPARE(field(registerUser("GRACE@Example.TEST", "Another-1"), "messageresponse"),
                 QLatin1String("This email address cannot be used to register. If it is yours, log in or reset your password."));
        const httplib::Params update { { "userid", hopper }, { "fullname", "G. Hopper" }, { "emailaddress", "Grace@example.test" } };
        QCOMPARE(field(m_client->script("updateuser.php", update).first(), "scode"), QLatin1String("0"));
        QVERIFY(field(login("grace@example.test", "Cobol-1959"), "messageresponse").startsWith(QLatin1String("Too many attempts.")));
        QCOMPARE(field(login("grace@example.test", "Cobol-1959", newClient().get()), "scode"), QLatin1String("1"));
    }

    // httplib serves from a pool of threads: parallel writes must all land,
    // each on its own user, while registrations run their transactions.
    void concurrentWritesAreAllKept()
    {
        constexpr qint64 burst = 16, feedbackPerUser = 25;
        std::vector<std::thread> threads;
        for (qint64 i = 0; i < burst; ++i)
            threads.emplace_back([this, i] {
                BackendClient client(*m_server);
                const std::string email = "burst" + std::to_string(i) + "@example.test";
                client.script("register.php", registration(email, "Parallel-Pass"));
                const std::string userId = field(login(email, "Parallel-Pass", &client), "userid").toStdString();
                for (qint64 n = 0; n < feedbackPerUser; ++n)
                    client.script("feedbacks.php", { { "userid", userId }, { "feedback", "Busy day" } });
            });
        for (std::thread &thread : threads)
            thread.join();
        m_secrets.push_back("Parallel-Pass");
        const auto burstRows = [this](const std::string &table) {
            const std::string sql = "SELECT COUNT(*) FROM " + table + " JOIN users ON users.id = user_id WHERE email LIKE 'burst%'";
            return queryNumber(m_server->dataDir(), sql.c_str());
        };
        // Each registration's subscription and welcome, and each feedback.
        QCOMPARE(burstRows("subscriptions"), burst);
        QCOMPARE(burstRows("notifications"), burst);
        QCOMPARE(burstRows("feedback"), burst * feedbackPerUser);
        // Each password hash takes 64 MiB: a burst must not run them all at once.
        const qint64 peak = m_server->peakMemoryKiB();
        QVERIFY2(peak > 0 && peak < 400 * 1024, qPrintable(QString::number(peak)));
    }

    // Scripts the app decodes as LoginModel get a refused one naming the problem; list scripts
    // get [] and the console names the problem. Never a 500 or a body the app cannot read.
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
        listRow("latitude range", "airquality.php?lat=90.5&lon=0", "Malformed parameter: lat");
        listRow("longitude nan", "airquality.php?lat=1&lon=nan", "Malformed parameter: lon");
        // The reason quotes the request: its line break must not forge a line.
        listRow("line break in a name", "checkmedical.php?userid=x&a%0Aforged=%FF", "Invalid UTF-8 in parameter: a%0Aforged");
        row("unknown script", "nosuch.php?userid=1", 404, "Unknown script: nosuch.php");
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
        QCOMPARE(record.size(), size_t(9)); // every key of the app's LoginModel
        QCOMPARE(field(record, "scode"), QLatin1String("0"));
        QCOMPARE(field(record, "userid"), QString());
        QVERIFY2(field(record, "messageresponse").startsWith(message), qPrintable(field(record, "messageresponse")));
    }

    // OpenWeatherMap's answers: whole hours from start to end, both ends
    // included when on the hour, each with its 1-5 index; and its refusals.
    void historyAnswersLikeTheRealService()
    {
        const nlohmann::json list = history(*m_server, historyQuery(newYear2026, newYear2026 + 2 * hour)).body.at("list");
        QCOMPARE(list.size(), size_t(3));
        for (size_t i = 0; i < list.size(); ++i) {
            QCOMPARE(list[i].at("dt").get<std::int64_t>(), newYear2026 + std::int64_t(i) * hour);
            QCOMPARE(list[i].at("main").at("aqi").get<int>(), openWeatherIndex(pollutants(list[i].at("components"))));
        }
        const nlohmann::json offTheHour = history(*m_server, historyQuery(newYear2026 + 1, newYear2026 + 2 * hour)).body.at("list");
        QCOMPARE(offTheHour.size(), size_t(2));
        QCOMPARE(offTheHour.front().at("dt").get<std::int64_t>(), newYear2026 + hour);

        const Answer wrongKey = history(*m_server, historyQuery(newYear2026, newYear2026 + hour, "not-the-key"));
        QCOMPARE(wrongKey.status, 401);
        QCOMPARE(wrongKey.body.at("cod").get<int>(), 401);

        const std::int64_t last = std::numeric_limits<std::int64_t>::max();
        httplib::Params noEnd = historyQuery(0, 0), badLatitude = historyQuery(0, 1);
        noEnd.erase("end");
        badLatitude.find("lat")->second = "north";
        for (const httplib::Params &query : { historyQuery(newYear2026, newYear2026 - 1), historyQuery(newYear2026, newYear2026 + 366 * 24 * hour),
                                              historyQuery(last - 1, last), noEnd, badLatitude }) {
            const Answer refused = history(*m_server, query);
            QCOMPARE(refused.status, 400);
            QVERIFY2(refused.body.at("cod") == "400" && refused.body.at("message").is_string(), qPrintable(dumped(refused.body)));
        }
    }

    // Every request gets a line, but neither the console nor a copy of the database gives away a
    // password, a session or the history key. The console shows reset passwords (as told) and the demo's.
    void secretsStayOffConsoleAndDisk()
    {
        login("augusta@example.test", "Secret-Passcode-7");
        // Masking goes by the decoded key.
        m_client->raw("/tarnelo/v1/register.php?fullname=X&emailaddress=x%40example.test&pass%77ord=Secret-Password-8");
        QVERIFY(!m_server->waitForConsoleLine(QStringLiteral("login.php?passcode=***&username=augusta")).isEmpty());
        m_secrets.insert(m_secrets.end(), { "Secret-Passcode-7", "Secret-Password-8", DevServerProcess::historyKey().toStdString() });
        for (const QString &line : m_server->consoleLines())
            for (const std::string &secret : m_secrets)
                QVERIFY2(line.startsWith(QLatin1String("Password reset for ")) || !line.contains(QString::fromStdString(secret)), qPrintable(line));

        m_secrets.push_back(m_server->demoPassword().toStdString());
        QByteArray bytes;
        const QDir dir(m_server->dataDir());
        for (const QString &name : dir.entryList({ QStringLiteral("devserver.sqlite*") }, QDir::Files))
            bytes += contents(dir.filePath(name));
        QVERIFY(bytes.contains("$argon2id$"));
        for (const std::string &secret : m_secrets)
            QVERIFY2(!bytes.contains(QByteArray::fromStdString(secret)), secret.c_str());
    }

    // A restart on the same directory keeps the accounts, their sessions and the trusted
    // certificate, narrows files left readable by others, and without the development flag
    // keeps a reset password off the console.
    void restartKeepsAccountsAndCertificate()
    {
        const std::string session = token("augusta@example.test", "Analytical-Engine-1843");
        const QByteArray firstCertificate = contents(m_server->caFile());
        QCOMPARE(m_server->stop(), 0);

        const QDir dir(m_server->dataDir());
        const QString database = dir.filePath(QStringLiteral("devserver.sqlite"));
        // Held open across the start, as a crashed run or a developer's shell
        // would, so that the -wal and -shm files are there already.
        sqlite3 *earlier = nullptr;
        QCOMPARE(sqlite3_open(QFile::encodeName(database).constData(), &earlier), SQLITE_OK);
        QCOMPARE(sqlite3_exec(earlier, "PRAGMA journal_mode=WAL; CREATE TABLE earlier (x);", nullptr, nullptr, nullptr), SQLITE_OK);
        const QStringList files { database, database + QStringLiteral("-wal"), database + QStringLiteral("-shm") };
        for (const QString &path : files + QStringList { dir.path() })
            QVERIFY(::chmod(QFile::encodeName(path).constData(), 0755) == 0);
        DevServerProcess again(dir.path(), {});
        QVERIFY(again.isReady());
        for (const QString &path : files + QStringList { dir.path(), dir.filePath(QStringLiteral("tls")), dir.filePath(QStringLiteral("tls/key.pem")) })
            QVERIFY2(QFileInfo::exists(path) && !(QFileInfo(path).permissions() & (QFile::ReadGroup | QFile::ReadOther)), qPrintable(path));
        sqlite3_close(earlier);

        QCOMPARE(contents(again.caFile()), firstCertificate);
        BackendClient client(again);
        QCOMPARE(client.script("checksubscription.php", { { "userid", session } }).body.size(), size_t(1));
        QCOMPARE(queryNumber(again.dataDir(), "SELECT COUNT(*) FROM users WHERE email = 'demo@tarnelo.test'"), qint64(1));
        client.script("resetpass.php", { { "emailaddress", again.demoEmail().toStdString() } });
        const QString reset = again.waitForConsoleLine(QStringLiteral("Password reset for ") + again.demoEmail());
        QVERIFY(!reset.isEmpty());
        QVERIFY2(!reset.contains(QRegularExpression(QStringLiteral(": \\w{12}$"))), qPrintable(reset));
    }
};

QTEST_GUILESS_MAIN(DevServerAccountsTest)
#include "tst_devserver_accounts.moc"
