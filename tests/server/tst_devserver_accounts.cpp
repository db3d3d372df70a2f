// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackendClient.h"
#include "common/DevServerProcess.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <atomic>
#include <memory>
#include <set>
#include <sqlite3.h>
#include <thread>

namespace
{
const char *const userFields[] = { "userid", "fullname", "phonenumber", "emailaddress", "dateofbirth", "gender", "registerdate" };

httplib::Params registration(const std::string &email, const std::string &password)
{
    return { { "fullname", "Ada Lovelace" },  { "emailaddress", email }, { "phonenumber", "+44 20 0000 0001" },
             { "dateofbirth", "1815-12-10" }, { "password", password },  { "gender", "2" },
             { "referral_code", "" } };
}

// A single number from the server's database file, read beside the running server.
qint64 countRows(const QString &dataDir, const char *sql)
{
    const QByteArray path = QFile::encodeName(QDir(dataDir).filePath(QStringLiteral("devserver.sqlite")));
    sqlite3 *db = nullptr;
    qint64 count = -1;
    if (sqlite3_open_v2(path.constData(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
        sqlite3_stmt *statement = nullptr;
        if (sqlite3_prepare_v2(db, sql, -1, &statement, nullptr) == SQLITE_OK && sqlite3_step(statement) == SQLITE_ROW)
            count = sqlite3_column_int64(statement, 0);
        sqlite3_finalize(statement);
    }
    sqlite3_close(db);
    return count;
}
} // namespace

class DevServerAccountsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<DevServerProcess> m_server;
    std::unique_ptr<BackendClient> m_client;
    std::vector<std::string> m_passwordsUsed;

    nlohmann::json registerUser(const std::string &email, const std::string &password)
    {
        m_passwordsUsed.push_back(password);
        return m_client->script("register.php", registration(email, password)).first();
    }

    nlohmann::json login(const std::string &email, const std::string &password)
    {
        return m_client->script("login.php", { { "username", email }, { "passcode", password } }).first();
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_server = std::make_unique<DevServerProcess>();
        QVERIFY2(m_server->isReady(), qPrintable(m_server->consoleLines().join(QLatin1Char('\n'))));
        m_client = std::make_unique<BackendClient>(*m_server);
    }

    // One account through register, login, update and the medical profile,
    // each answer carrying what the previous step stored.
    void accountRoundTrip()
    {
        const nlohmann::json registered = registerUser("ada@example.test", "Analytical-Engine-1843");
        QCOMPARE(field(registered, "scode"), QLatin1String("1"));
        const std::string userId = field(registered, "userid").toStdString();
        QVERIFY(field(registered, "userid").toLongLong() > 0);
        QCOMPARE(field(registered, "dateofbirth"), QLatin1String("1815-12-10"));
        QVERIFY(field(registered, "registerdate").contains(QRegularExpression(QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d$"))));

        const nlohmann::json loggedIn = login("ada@example.test", "Analytical-Engine-1843");
        QCOMPARE(field(loggedIn, "scode"), QLatin1String("1"));
        for (const char *key : userFields)
            QCOMPARE(field(loggedIn, key), field(registered, key));

        const nlohmann::json updated = m_client
                                           ->script("updateuser.php",
                                                    { { "fullname", "Augusta Ada King" },
                                                      { "emailaddress", "augusta@example.test" },
                                                      { "phonenumber", "+44 20 0000 0002" },
                                                      { "dateofbirth", "1815-12-11" },
                                                      { "gender", "3" },
                                                      { "userid", userId } })
                                           .first();
        QCOMPARE(field(updated, "scode"), QLatin1String("1"));
        QCOMPARE(field(updated, "fullname"), QLatin1String("Augusta Ada King"));
        QCOMPARE(field(updated, "dateofbirth"), QLatin1String("1815-12-11"));
        QCOMPARE(field(login("augusta@example.test", "Analytical-Engine-1843"), "userid"), field(registered, "userid"));
        QCOMPARE(field(login("ada@example.test", "Analytical-Engine-1843"), "scode"), QLatin1String("0"));

        const httplib::Params readBack { { "userid", userId },   { "conditionstatus", "0" }, { "conditionname", "0" }, { "emergencycontact", "0" },
                                         { "phonenumber", "0" }, { "relationship", "0" },    { "weight", "0" },        { "height", "0" },
                                         { "smoker", "0" },      { "smokerstatus", "0" },    { "moredetails", "0" } };
        QCOMPARE(dumped(m_client->script("checkmedicaldetails.php", readBack).body), QLatin1String("[]"));
        QCOMPARE(dumped(m_client->script("checkmedical.php", { { "userid", userId } }).body), QLatin1String("[]"));

        httplib::Params medical { { "userid", userId },
                                  { "conditionstatus", "Yes" },
                                  { "conditionname", "Asthma" },
                                  { "emergencycontact", "Charles Babbage" },
                                  { "phonenumber", "+44 1" },
                                  { "relationship", "Friend" },
                                  { "weight", "55" },
                                  { "height", "165" },
                                  { "smokerstatus", "No" },
                                  { "smoker", "" },
                                  { "moredetails", "Carries an inhaler" } };
        QCOMPARE(field(m_client->script("savemedical.php", medical).first(), "scode"), QLatin1String("1"));
        // Saving again replaces the profile rather than adding a second one.
        medical.find("weight")->second = "56";
        QCOMPARE(field(m_client->script("savemedical.php", medical).first(), "scode"), QLatin1String("1"));

        const Answer details = m_client->script("checkmedicaldetails.php", readBack);
        QCOMPARE(details.body.size(), size_t(1));
        for (const auto &[key, value] : medical)
            QCOMPARE(field(details.first(), key.c_str()), QString::fromStdString(value));
        const Answer conditions = m_client->script("checkmedical.php", { { "userid", userId } });
        QCOMPARE(conditions.body.size(), size_t(1));
        QCOMPARE(field(conditions.first(), "conditionname"), QLatin1String("Asthma"));
        QCOMPARE(field(conditions.first(), "conditionstatus"), QLatin1String("Yes"));
    }

    // An address is taken in every letter case, by registering and by updating.
    void duplicateEmailIsRefused()
    {
        QCOMPARE(field(registerUser("grace@example.test", "Cobol-1959"), "scode"), QLatin1String("1"));
        for (const char *email : { "grace@example.test", "GRACE@Example.TEST" }) {
            const nlohmann::json refused = registerUser(email, "Another-1");
            QCOMPARE(field(refused, "scode"), QLatin1String("0"));
            QCOMPARE(field(refused, "messageresponse"), QLatin1String("An account with this email address already exists."));
            QCOMPARE(field(refused, "userid"), QString());
        }
        const std::string secondId = field(registerUser("hopper@example.test", "Mark-II-1947"), "userid").toStdString();
        const Answer update
            = m_client->script("updateuser.php", { { "fullname", "G. Hopper" }, { "emailaddress", "Grace@example.test" }, { "userid", secondId } });
        QCOMPARE(field(update.first(), "scode"), QLatin1String("0"));
        QCOMPARE(field(login("hopper@example.test", "Mark-II-1947"), "scode"), QLatin1String("1"));
    }

    // The answer must not reveal whether an address has an account.
    void wrongPasswordAndUnknownAddressLookAlike()
    {
        registerUser("turing@example.test", "Bombe-1940");
        const nlohmann::json wrongPassword = login("turing@example.test", "bombe-1940");
        QCOMPARE(field(wrongPassword, "scode"), QLatin1String("0"));
        QCOMPARE(field(wrongPassword, "messageresponse"), QLatin1String("Incorrect email address or password."));
        QCOMPARE(dumped(login("nobody@example.test", "Bombe-1940")), dumped(wrongPassword));
    }

    void resetReplacesThePasswordWithoutAnsweringIt()
    {
        registerUser("hamilton@example.test", "Apollo-1969");
        const Answer known = m_client->script("resetpass.php", { { "emailaddress", "hamilton@example.test" } });
        QCOMPARE(field(known.first(), "scode"), QLatin1String("1"));
        const QString line = m_server->waitForConsoleLine(QStringLiteral("Password reset for hamilton@example.test: "));
        const std::string newPassword = line.section(QStringLiteral(": "), 1).toStdString();
        QCOMPARE(newPassword.size(), size_t(12));
        m_passwordsUsed.push_back(newPassword);
        QVERIFY(known.body.dump().find(newPassword) == std::string::npos);

        QCOMPARE(field(login("hamilton@example.test", "Apollo-1969"), "scode"), QLatin1String("0"));
        QCOMPARE(field(login("hamilton@example.test", newPassword), "scode"), QLatin1String("1"));

        // An unknown address gets the very same answer, and nothing changes.
        const Answer unknown = m_client->script("resetpass.php", { { "emailaddress", "stranger@example.test" } });
        QCOMPARE(dumped(unknown.body), dumped(known.body));
        QVERIFY(!m_server->waitForConsoleLine(QStringLiteral("stranger@example.test, which has no account")).isEmpty());
    }

    // httplib serves from a pool of threads: parallel writes must all land,
    // each on its own user, while registrations run their transactions.
    void concurrentWritesAreAllKept()
    {
        constexpr size_t burst = 40, feedbackPerUser = 10;
        std::vector<std::string> ids(burst);
        std::atomic<size_t> feedbackAccepted { 0 };
        std::vector<std::thread> threads;
        for (size_t i = 0; i < burst; ++i)
            threads.emplace_back([this, i, &ids, &feedbackAccepted] {
                BackendClient client(*m_server);
                const Answer answer = client.script("register.php", registration("burst" + std::to_string(i) + "@example.test", "Parallel-Pass"));
                ids[i] = field(answer.first(), "userid").toStdString();
                for (size_t n = 0; n < feedbackPerUser; ++n)
                    feedbackAccepted
                        += field(client.script("feedbacks.php", { { "userid", ids[i] }, { "feedback", "Busy day" } }).first(), "scode") == QLatin1String("1");
            });
        for (std::thread &thread : threads)
            thread.join();
        m_passwordsUsed.push_back("Parallel-Pass");

        const std::set<std::string> distinct(ids.begin(), ids.end());
        QCOMPARE(distinct.size(), burst);
        QVERIFY(!distinct.count("<missing>"));
        QCOMPARE(feedbackAccepted.load(), burst * feedbackPerUser);
        const QString dir = m_server->dataDir();
        QCOMPARE(countRows(dir, "SELECT COUNT(*) FROM users WHERE email LIKE 'burst%'"), qint64(burst));
        for (const char *table : { "subscriptions", "notifications" }) {
            const QByteArray sql = QByteArray("SELECT COUNT(DISTINCT user_id) FROM ") + table + " JOIN users ON users.id = user_id WHERE email LIKE 'burst%'";
            QCOMPARE(countRows(dir, sql.constData()), qint64(burst));
        }
        QCOMPARE(countRows(dir, "SELECT COUNT(*) FROM feedback JOIN users ON users.id = user_id WHERE email LIKE 'burst%'"), qint64(burst * feedbackPerUser));
    }

    void databaseHoldsNoClearPassword()
    {
        QVERIFY(m_passwordsUsed.size() > 5);
        m_passwordsUsed.push_back(m_server->demoPassword().toStdString());
        QByteArray bytes;
        const QDir dir(m_server->dataDir());
        for (const QString &name : dir.entryList({ QStringLiteral("devserver.sqlite*") }, QDir::Files)) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            bytes += file.readAll();
        }
        QVERIFY(bytes.contains("$argon2id$"));
        for (const std::string &password : m_passwordsUsed)
            QVERIFY2(!bytes.contains(QByteArray::fromStdString(password)), password.c_str());
    }

    // A restart on the same directory keeps the accounts, and the certificate
    // that clients already trust.
    void restartKeepsAccountsAndCertificate()
    {
        QFile certificate(m_server->caFile());
        QVERIFY(certificate.open(QIODevice::ReadOnly));
        const QByteArray firstCertificate = certificate.readAll();
        QCOMPARE(m_server->stop(), 0);
        QVERIFY(m_server->consoleLines().contains(QStringLiteral("Stopped.")));

        DevServerProcess again(m_server->dataDir());
        QVERIFY(again.isReady());
        QFile reused(again.caFile());
        QVERIFY(reused.open(QIODevice::ReadOnly));
        QCOMPARE(reused.readAll(), firstCertificate);
        BackendClient client(again);
        const Answer login = client.script("login.php", { { "username", "augusta@example.test" }, { "passcode", "Analytical-Engine-1843" } });
        QCOMPARE(field(login.first(), "scode"), QLatin1String("1"));
        QCOMPARE(countRows(again.dataDir(), "SELECT COUNT(*) FROM users WHERE email = 'demo@tarnelo.test'"), qint64(1));
    }
};

QTEST_GUILESS_MAIN(DevServerAccountsTest)
#include "tst_devserver_accounts.moc"
