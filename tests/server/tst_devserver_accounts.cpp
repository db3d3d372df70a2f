// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackendClient.h"
#include "common/DevServerProcess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

#include <memory>
#include <set>
#include <sqlite3.h>
#include <sys/stat.h>
#include <thread>

namespace
{
const char *const userFields[] = { "fullname", "phonenumber", "emailaddress", "dateofbirth", "gender", "registerdate" };
const QLatin1String wrongCredentials("Incorrect email address or password.");
const QRegularExpression sessionToken(QStringLiteral("^[0-9a-f]{32}$"));

httplib::Params registration(const std::string &email, const std::string &password)
{
    return { { "fullname", "Ada Lovelace" },  { "emailaddress", email }, { "phonenumber", "+44 20 0000 0001" },
             { "dateofbirth", "1815-12-10" }, { "password", password },  { "gender", "2" },
             { "referral_code", "" } };
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

QString modeOf(const QString &path)
{
    struct stat status;
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return QStringLiteral("missing");
    return QString::number(status.st_mode & 07777, 8);
}

// A single number from the server's database file, read beside the running server.
qint64 queryNumber(const QString &dataDir, const char *sql)
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
    int m_clientsMade = 0;
    // Passwords and session tokens, none of which the database may hold.
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

    // A login's session token, or a note saying why there is none.
    std::string token(const std::string &email, const std::string &password)
    {
        const QString userId = field(login(email, password), "userid");
        m_secrets.push_back(userId.toStdString());
        return sessionToken.match(userId).hasMatch() ? userId.toStdString() : "<not a token: " + userId.toStdString() + ">";
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
        for (const char *key : userFields)
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

        QCOMPARE(field(login("bob@example.test", "Bob-Pass-1"), "fullname"), QLatin1String("Ada Lovelace"));
        QCOMPARE(field(m_client->script("checkmedical.php", { { "userid", bob } }).first(), "conditionname"), QLatin1String("Asthma conditionname"));
    }

    // A wrong password and an unknown address get the same answer. Five
    // failures for an address, then even its right password waits, from any
    // client, until the delay (1 s here) has passed.
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

    // An address is taken in every letter case, by registering and by
    // updating. The refusal does not say that it has an account, but counts
    // as a failure: a client's failures count across addresses.
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
        QCOMPARE(field(login("hopper@example.test", "Mark-II-1947", newClient().get()), "scode"), QLatin1String("1"));
    }

    // httplib serves from a pool of threads: parallel writes must all land,
    // each on its own user, while registrations run their transactions.
    void concurrentWritesAreAllKept()
    {
        constexpr size_t burst = 16, feedbackPerUser = 25;
        std::vector<std::string> tokens(burst);
        std::vector<std::thread> threads;
        for (size_t i = 0; i < burst; ++i)
            threads.emplace_back([this, i, &tokens] {
                BackendClient client(*m_server);
                const std::string email = "burst" + std::to_string(i) + "@example.test";
                client.script("register.php", registration(email, "Parallel-Pass"));
                tokens[i] = field(login(email, "Parallel-Pass", &client), "userid").toStdString();
                for (size_t n = 0; n < feedbackPerUser; ++n)
                    client.script("feedbacks.php", { { "userid", tokens[i] }, { "feedback", "Busy day" } });
            });
        for (std::thread &thread : threads)
            thread.join();
        m_secrets.push_back("Parallel-Pass");
        m_secrets.insert(m_secrets.end(), tokens.begin(), tokens.end());

        QCOMPARE(std::set<std::string>(tokens.begin(), tokens.end()).size(), burst);
        const QString dir = m_server->dataDir();
        QCOMPARE(queryNumber(dir, "SELECT COUNT(*) FROM users WHERE email LIKE 'burst%'"), qint64(burst));
        for (const char *table : { "subscriptions", "notifications" }) {
            const QByteArray sql = QByteArray("SELECT COUNT(DISTINCT user_id) FROM ") + table + " JOIN users ON users.id = user_id WHERE email LIKE 'burst%'";
            QCOMPARE(queryNumber(dir, sql.constData()), qint64(burst));
        }
        QCOMPARE(queryNumber(dir, "SELECT COUNT(*) FROM feedback JOIN users ON users.id = user_id WHERE email LIKE 'burst%'"), qint64(burst * feedbackPerUser));
        // Each password hash takes 64 MiB: a burst must not run them all at once.
        const qint64 peak = m_server->peakMemoryKiB();
        QVERIFY2(peak > 0 && peak < 400 * 1024, qPrintable(QString::number(peak)));
    }

    // A copy of the database gives away no password and no working session.
    void databaseHoldsNoSecret()
    {
        QVERIFY(m_secrets.size() > 20);
        m_secrets.push_back(m_server->demoPassword().toStdString());
        QByteArray bytes;
        const QDir dir(m_server->dataDir());
        for (const QString &name : dir.entryList({ QStringLiteral("devserver.sqlite*") }, QDir::Files)) {
            QFile file(dir.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            bytes += file.readAll();
        }
        QVERIFY(bytes.contains("$argon2id$"));
        for (const std::string &secret : m_secrets)
            QVERIFY2(!bytes.contains(QByteArray::fromStdString(secret)), secret.c_str());
    }

    // A restart on the same directory keeps the accounts, their sessions, and
    // the certificate that clients already trust. A directory and database
    // left readable by others are narrowed at start; without the development
    // flag a reset password stays off the console.
    void restartKeepsAccountsAndCertificate()
    {
        const std::string session = token("augusta@example.test", "Analytical-Engine-1843");
        QFile certificate(m_server->caFile());
        QVERIFY(certificate.open(QIODevice::ReadOnly));
        const QByteArray firstCertificate = certificate.readAll();
        QCOMPARE(m_server->stop(), 0);
        QVERIFY(m_server->consoleLines().contains(QStringLiteral("Stopped.")));

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
            QCOMPARE(path + QLatin1Char(' ') + modeOf(path), path + (QFileInfo(path).isDir() ? QStringLiteral(" 700") : QStringLiteral(" 600")));
        sqlite3_close(earlier);

        QFile reused(again.caFile());
        QVERIFY(reused.open(QIODevice::ReadOnly));
        QCOMPARE(reused.readAll(), firstCertificate);
        BackendClient client(again);
        QCOMPARE(client.script("checksubscription.php", { { "userid", session } }).body.size(), size_t(1));
        const Answer login = client.script("login.php", { { "username", "augusta@example.test" }, { "passcode", "Analytical-Engine-1843" } });
        QCOMPARE(field(login.first(), "scode"), QLatin1String("1"));
        QCOMPARE(queryNumber(again.dataDir(), "SELECT COUNT(*) FROM users WHERE email = 'demo@tarnelo.test'"), qint64(1));
        client.script("resetpass.php", { { "emailaddress", again.demoEmail().toStdString() } });
        const QString reset = again.waitForConsoleLine(QStringLiteral("Password reset for ") + again.demoEmail());
        QVERIFY(!reset.isEmpty());
        QVERIFY2(!reset.contains(QRegularExpression(QStringLiteral(": \\w{12}$"))), qPrintable(reset));
    }
};

QTEST_GUILESS_MAIN(DevServerAccountsTest)
#include "tst_devserver_accounts.moc"
