// SPDX-License-Identifier: GPL-3.0-or-later
// What the development backend's answers cost once it holds a lot of data.
// Fills a fresh data directory through SQLite with 100,000 users (a fixed
// dummy Argon2 hash each, a subscription and a welcome notification), then
// registers and logs in two users through the scripts, as the app does: one
// with a medical profile, one that is then given 100,000 notifications. The
// list requests carry the userid that login answered, whatever it is. Reports:
//   - p50/p95 of each list script for the first user, 300 requests each on
//     one kept-alive connection;
//   - the size and time of the second user's "notification.php" answer
//     (10 requests on one kept-alive connection);
//   - the latency of "logout.php" while four clients send list requests;
//   - the server's peak resident memory (VmHWM).
// Usage: devserver_data
#include "common/DevServerProcess.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <httplib.h>
#include <nlohmann/json.hpp>
#include <sqlite3.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <exception>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace
{
using Clock = std::chrono::steady_clock;

constexpr int userCount = 100000;
constexpr int heavyNotificationCount = 100000;
constexpr int samplesPerScript = 300;
const char *const listScripts[] = { "notification.php", "checkmedical.php", "checksubscription.php", "checkmedicaldetails.php" };
// A real Argon2id string as the server stores them, of a password nobody uses.
const char *const dummyHash = "$argon2id$v=19$m=65536,t=2,p=1$9Zr6CbC0GJx6YmgQW/8AeA$ScYWHaU8GiJ3FnBc4vm18DQg5F3ZKUjZW1HqQa1Spy4";

// Runs each statement of a batch on the server's database file, beside the server if it runs.
class DataFile
{
public:
    explicit DataFile(const QString &dataDir)
    {
        const QByteArray path = QFile::encodeName(QDir(dataDir).filePath(QStringLiteral("devserver.sqlite")));
        if (sqlite3_open_v2(path.constData(), &m_db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
            throw std::runtime_error("cannot open " + path.toStdString());
        sqlite3_busy_timeout(m_db, 10000);
    }
    ~DataFile() { sqlite3_close(m_db); }

    void execute(const std::string &sql)
    {
        char *error = nullptr;
        if (sqlite3_exec(m_db, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
            const std::string reason = error ? error : "unknown error";
            sqlite3_free(error);
            throw std::runtime_error(sql.substr(0, 80) + ": " + reason);
        }
    }

private:
    sqlite3 *m_db = nullptr;
};

void fillUsers(DataFile &data)
{
    // Recursive CTEs make the rows inside SQLite, as fast as it writes them.
    data.execute("BEGIN");
    data.execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(userCount)
                 + ") INSERT INTO users (fullname, email, phone, dateofbirth, gender, password_hash, registered) "
                   "SELECT 'Bench User ' || i, 'user' || i || '@bench.test', '', '1990-01-01', '3', '"
                 + dummyHash + "', '2026-01-01 00:00:00' FROM n");
    data.execute("INSERT INTO subscriptions (user_id, type, package, status) SELECT id, 'Individual', 'Freemium', 'Active' FROM users");
    data.execute("INSERT INTO notifications (user_id, topic, message, posted) "
                 "SELECT id, 'Welcome to Tarnelo', 'Your account is ready.', '2026-01-01 00:00:00' FROM users");
    data.execute("COMMIT");
}

void addNotifications(DataFile &data, const std::string &email, int count)
{
    data.execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(count)
                 + ") INSERT INTO notifications (user_id, topic, message, posted) "
                   "SELECT (SELECT id FROM users WHERE email = '"
                 + email + "'), 'Air quality alert ' || i, 'The air around you is unhealthy for sensitive groups.', '2026-01-01 00:00:00' FROM n");
}

class Client
{
public:
    explicit Client(const DevServerProcess &server)
        : m_client("127.0.0.1", server.httpsPort())
    {
        m_client.set_ca_cert_path(server.caFile().toStdString());
        m_client.enable_server_certificate_verification(true);
        m_client.set_keep_alive(true);
        m_client.set_read_timeout(120);
    }

    // The answer's body; throws when none came.
    std::string get(const std::string &script, const httplib::Params &params)
    {
        const httplib::Result result = m_client.Get(httplib::append_query_params("/tarnelo/v1/" + script, params));
        if (!result)
            throw std::runtime_error(script + ": no answer (" + httplib::to_string(result.error()) + ")");
        return result->body;
    }

    double timedMs(const std::string &script, const httplib::Params &params)
    {
        const Clock::time_point start = Clock::now();
        get(script, params);
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }

private:
    httplib::SSLClient m_client;
};

std::string registerAndLogIn(Client &client, const std::string &email)
{
    const std::string password = "Bench-Password-2026";
    client.get("register.php", { { "fullname", "Bench Person" }, { "emailaddress", email }, { "password", password } });
    const nlohmann::json answer = nlohmann::json::parse(client.get("login.php", { { "username", email }, { "passcode", password } }));
    if (!answer.is_array() || answer.empty() || answer[0].value("scode", "") != "1")
        throw std::runtime_error("login of " + email + " refused: " + answer.dump());
    return answer[0].at("userid").get<std::string>();
}

std::string percentiles(std::vector<double> samples)
{
    std::sort(samples.begin(), samples.end());
    const auto at = [&samples](double fraction) { return samples[std::min(samples.size() - 1, static_cast<size_t>(fraction * samples.size()))]; };
    char text[96];
    std::snprintf(text, sizeof text, "p50 %7.2f ms   p95 %7.2f ms   (%zu requests)", at(0.5), at(0.95), samples.size());
    return text;
}

// The only child of this process is the server that DevServerProcess started.
std::string peakMemoryOfServer()
{
    QFile children(QStringLiteral("/proc/self/task/%1/children").arg(QCoreApplication::applicationPid()));
    if (!children.open(QIODevice::ReadOnly))
        return "unknown";
    const QString pid = QString::fromLatin1(children.readAll()).split(QLatin1Char(' ')).value(0);
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return "unknown";
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).simplified().toStdString();
    return "unknown";
}

// Runs the work on a thread of its own while this one lets the server's
// console be read: left unread, the pipe fills and the server blocks on its
// next line.
void runWhileReadingConsole(const std::function<void()> &work)
{
    QEventLoop loop;
    std::exception_ptr failure;
    std::thread worker([&] {
        try {
            work();
        } catch (...) {
            failure = std::current_exception();
        }
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    worker.join();
    if (failure)
        std::rethrow_exception(failure);
}

void measureListScripts(const DevServerProcess &server, const std::string &userId)
{
    for (const char *script : listScripts) {
        Client client(server);
        std::vector<double> samples;
        for (int i = 0; i < samplesPerScript; ++i)
            samples.push_back(client.timedMs(script, { { "userid", userId } }));
        std::printf("%-24s %s\n", script, percentiles(samples).c_str());
    }
}

void measureLongList(const DevServerProcess &server, const std::string &userId)
{
    Client client(server);
    std::vector<double> samples;
    size_t size = 0;
    for (int i = 0; i < 10; ++i) {
        const Clock::time_point start = Clock::now();
        size = client.get("notification.php", { { "userid", userId } }).size();
        samples.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    std::printf("notification.php of the user with %d notifications: %zu bytes, %s\n", heavyNotificationCount + 1, size, percentiles(samples).c_str());
}

void measureLogoutUnderLoad(const DevServerProcess &server, const std::string &userId, const std::string &email)
{
    std::atomic<bool> done { false };
    std::vector<std::thread> load;
    for (int i = 0; i < 4; ++i)
        load.emplace_back([&server, &userId, &done, i] {
            Client client(server);
            for (int n = i; !done; ++n)
                client.get(listScripts[n % 4], { { "userid", userId } });
        });
    Client client(server);
    std::vector<double> samples;
    for (int i = 0; i < 20; ++i) {
        // Each logout may end its session, so each gets a fresh one, untimed.
        const nlohmann::json login = nlohmann::json::parse(client.get("login.php", { { "username", email }, { "passcode", "Bench-Password-2026" } }));
        samples.push_back(client.timedMs("logout.php", { { "userid", login.at(0).at("userid").get<std::string>() } }));
    }
    done = true;
    for (std::thread &thread : load)
        thread.join();
    std::printf("logout.php beside 4 clients sending list requests: %s\n", percentiles(samples).c_str());
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    try {
        QTemporaryDir dir;
        DevServerProcess(dir.path()).stop(); // makes the schema
        {
            DataFile data(dir.path());
            const Clock::time_point start = Clock::now();
            fillUsers(data);
            std::printf("filled %d users in %.1f s\n", userCount, std::chrono::duration<double>(Clock::now() - start).count());
        }
        DevServerProcess server(dir.path());
        if (!server.isReady())
            throw std::runtime_error("the server did not start: " + server.consoleLines().join(QLatin1Char('\n')).toStdString());
        Client client(server);
        const std::string lightEmail = "light@bench.test";
        const std::string lightUser = registerAndLogIn(client, lightEmail);
        client.get("savemedical.php", { { "userid", lightUser }, { "conditionstatus", "Yes" }, { "conditionname", "Asthma" }, { "smokerstatus", "No" } });
        const std::string heavyUser = registerAndLogIn(client, "heavy@bench.test");
        DataFile data(dir.path());
        addNotifications(data, "heavy@bench.test", heavyNotificationCount);

        runWhileReadingConsole([&] {
            measureListScripts(server, lightUser);
            measureLongList(server, heavyUser);
            measureLogoutUnderLoad(server, lightUser, lightEmail);
        });
        std::printf("server peak resident memory: %s\n", peakMemoryOfServer().c_str());
    } catch (const std::exception &error) {
        std::fprintf(stderr, "devserver_data: %s\n", error.what());
        return 1;
    }
    return 0;
}
