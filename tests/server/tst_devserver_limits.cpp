// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Database.h"
#include "server/HistoryService.h"
#include "server/Listeners.h"
#include "server/LoginThrottle.h"
#include "server/ProfileStore.h"
#include "server/ReadingSources.h"
#include "server/Schema.h"
#include "server/ScriptRouter.h"
#include "server/SessionStore.h"
#include "server/TlsCertificate.h"
#include "server/UserStore.h"

#include <QElapsedTimer>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <memory>
#include <sodium.h>
#include <utility>

namespace
{
using namespace std::chrono_literals;

// Both listeners in this process, on ports of their own, with the test's limits.
struct LocalListeners {
    explicit LocalListeners(const ConnectionLimits &limits)
        : listeners(tls, scripts, history, limits)
    {
        listeners.bind("127.0.0.1", 0, 0);
        listeners.start([] {});
    }

    QTemporaryDir dir;
    TlsFiles tls = ensureTlsCertificate(dir.filePath(QStringLiteral("tls")).toStdString());
    ScriptRouter scripts;
    ReadingSources readings { {} };
    HistoryService history { "test-key", readings };
    Listeners listeners;
};

// Any certificate will do: these clients only need to reach the server.
std::unique_ptr<QSslSocket> connectTo(int port, bool tls)
{
    auto socket = std::make_unique<QSslSocket>();
    socket->setPeerVerifyMode(QSslSocket::VerifyNone);
    if (tls)
        socket->connectToHostEncrypted(QStringLiteral("127.0.0.1"), static_cast<quint16>(port));
    else
        socket->connectToHost(QStringLiteral("127.0.0.1"), static_cast<quint16>(port));
    return socket;
}

// Connected, and over TLS done with the handshake.
bool isReady(const QSslSocket &socket)
{
    return socket.state() == QAbstractSocket::ConnectedState && (socket.mode() == QSslSocket::UnencryptedMode || socket.isEncrypted());
}

// Clients that, once ready, send their opening bytes and then their drip
// every 100 ms: nothing at all, if both are empty.
struct SlowClients {
    SlowClients()
    {
        QObject::connect(&timer, &QTimer::timeout, [this] {
            for (Client &client : clients)
                if (isReady(*client.socket))
                    client.socket->write(std::exchange(client.next, client.drip));
        });
        timer.start(100);
    }

    void add(int port, bool tls, int count, const QByteArray &opening = {}, const QByteArray &drip = {})
    {
        for (int i = 0; i < count; ++i)
            clients.push_back({ connectTo(port, tls), opening, drip });
    }

    int readyCount() const
    {
        return static_cast<int>(std::count_if(clients.begin(), clients.end(), [](const Client &client) { return isReady(*client.socket); }));
    }

    struct Client {
        std::unique_ptr<QSslSocket> socket;
        QByteArray next;
        QByteArray drip;
    };
    std::vector<Client> clients;
    QTimer timer;
};

const QByteArray requestLine = "GET /tarnelo/v1/none.php HTTP/1.1\r\nX-Slow: ";
// A TLS record header announcing a 512-byte handshake message that never quite comes.
const QByteArray handshakeRecordHeader = QByteArray::fromHex("1603010200");

// One request as a new client makes it: connection, TLS handshake, answer.
qint64 normalRequestMs(const LocalListeners &server)
{
    QElapsedTimer timer;
    timer.start();
    httplib::SSLClient client("127.0.0.1", server.listeners.httpsPort());
    client.enable_server_certificate_verification(false);
    client.set_connection_timeout(10);
    client.set_read_timeout(10);
    const httplib::Result answer = client.Get("/tarnelo/v1/none.php");
    return answer ? timer.elapsed() : -1;
}
} // namespace

// What a client may cost the backend and how long what it leaves is kept:
// slow connections, pipelining, password guessing, idle sessions and long
// lists, in this process, under a clock moved by hand where the limit is days.
class DevServerLimitsTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    Database m_db { m_dir.filePath(QStringLiteral("stores.sqlite")).toStdString() };
    std::optional<User> m_user;

private Q_SLOTS:
    void initTestCase()
    {
        // As the server's main() does: a client that hangs up must not end the process.
        std::signal(SIGPIPE, SIG_IGN);
        QVERIFY(sodium_init() >= 0);
        createSchema(m_db);
        m_user = UserStore(m_db).create({ "Ada", "", "ada@example.test", "", "" }, "not a real hash");
        QVERIFY(m_user);
    }

    void slowClientsDelayNobody()
    {
        auto server = std::make_unique<LocalListeners>(ConnectionLimits { 4s });
        const int port = server->listeners.httpsPort();
        SlowClients slow;
        QElapsedTimer opening;
        opening.start();
        slow.add(port, false, 16); // no ClientHello
        slow.add(port, false, 16, handshakeRecordHeader, QByteArray(1, '\0'));
        slow.add(port, true, 16); // nothing after the handshake
        slow.add(port, true, 16, requestLine, "x");
        QTRY_COMPARE_WITH_TIMEOUT(slow.readyCount(), 64, 3000);
        // Not even a burst of new connections may wait out a SYN retransmission, a second.
        QVERIFY2(opening.elapsed() < 1000, qPrintable(QString::number(opening.elapsed())));
        QTest::qWait(300); // some bytes trickle in

        std::vector<qint64> latencies(7);
        for (qint64 &latency : latencies) {
            latency = normalRequestMs(*server);
            QTest::qWait(20);
        }
        std::sort(latencies.begin(), latencies.end());
        // Every request answered, the median in under 100 ms.
        QVERIFY2(latencies.front() >= 0 && latencies[3] < 100, qPrintable(QStringLiteral("min %1 ms, median %2 ms").arg(latencies.front()).arg(latencies[3])));
        QCOMPARE(slow.readyCount(), 64); // they were all still there

        QElapsedTimer stopping;
        stopping.start();
        server->listeners.stop();
        QVERIFY2(stopping.elapsed() < 1000, "stopping waited for the slow connections");
    }

    // The same code serves both listeners: on each, a request trickled in byte
    // by byte is cut off at the limit, while pipelined requests beside it all
    // get their answers, in order.
    void trickledIsCutOffPipelinedAreAnswered_data()
    {
        QTest::addColumn<bool>("tls");
        QTest::newRow("https") << true;
        QTest::newRow("http") << false;
    }

    void trickledIsCutOffPipelinedAreAnswered()
    {
        QFETCH(bool, tls);
        LocalListeners server(ConnectionLimits { 1s });
        const int port = tls ? server.listeners.httpsPort() : server.listeners.httpPort();
        SlowClients slow;
        QElapsedTimer sinceConnect;
        sinceConnect.start();
        slow.add(port, tls, 1, requestLine, "x");
        const std::unique_ptr<QSslSocket> pipelining = connectTo(port, tls);
        QTRY_VERIFY_WITH_TIMEOUT(isReady(*pipelining) && slow.readyCount() == 1, 1000);
        for (int i = 0; i < 50; ++i)
            pipelining->write("GET /pipelined/" + QByteArray::number(i) + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
        QByteArray received;
        QTRY_VERIFY_WITH_TIMEOUT((received += pipelining->readAll()).contains("/pipelined/49\""), 5000);
        int position = 0;
        for (int i = 0; i < 50 && position >= 0; ++i)
            position = received.indexOf("/pipelined/" + QByteArray::number(i) + '"', position);
        QVERIFY(position >= 0);

        QTRY_COMPARE_WITH_TIMEOUT(slow.readyCount(), 0, 3000);
        QVERIFY2(sinceConnect.elapsed() >= 950 && sinceConnect.elapsed() < 2000, qPrintable(QString::number(sinceConnect.elapsed())));
    }

    // A session lives 90 days from its last use, and a use refreshes that
    // time only once it is a day old.
    void sessionExpiresUnusedForNinetyDays()
    {
        constexpr std::time_t day = 24 * 3600, start = 1'700'000'000;
        std::time_t now = start;
        SessionStore sessions(m_db, [&now] { return now; });
        const std::string kept = sessions.open(m_user->id), idle = sessions.open(m_user->id);
        QVERIFY(kept != idle);

        const auto userOf = [&sessions](const std::string &token) { return sessions.userFor(token).value_or(0); };
        now = start + day / 2;
        QCOMPARE(userOf(idle), m_user->id);
        now = start + 90 * day - 1;
        QCOMPARE(userOf(kept), m_user->id);
        now = start + 90 * day;
        QCOMPARE(userOf(idle), std::int64_t(0));
        QCOMPARE(userOf(kept), m_user->id);
        now = start + 180 * day - 1;
        QCOMPARE(userOf(kept), std::int64_t(0));
    }

    // Five free failures, then 30 s doubling with each failure up to 15 min;
    // refused tries count nothing, and a day without failures forgets them.
    void throttleDelayDoublesToItsCap()
    {
        auto now = std::chrono::steady_clock::time_point() + 1000h;
        LoginThrottle throttle(30s, [&now] { return now; });
        const auto wait = [&throttle] { return int(throttle.waitFor("key").count()); };
        for (int i = 0; i < 4; ++i)
            throttle.recordFailure("key");
        QCOMPARE(wait(), 0);
        QCOMPARE(int(throttle.begin("key").count()), 0);
        QCOMPARE(wait(), 30);
        QCOMPARE(int(throttle.begin("key").count()), 30);
        for (const int expected : { 60, 120, 240, 480, 900, 900 }) {
            now += throttle.waitFor("key");
            throttle.recordFailure("key");
            QCOMPARE(wait(), expected);
        }
        now += 25h;
        throttle.recordFailure("key");
        QCOMPARE(wait(), 0);
        for (int i = 0; i < 4; ++i)
            throttle.recordFailure("key");
        QCOMPARE(wait(), 30);
    }

    void notificationListHoldsTheNewest100()
    {
        Database::Session(m_db).execute("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 149) "
                                        "INSERT INTO notifications (user_id, topic, message, posted) SELECT (SELECT id FROM users), 'Topic', i, '' FROM n");
        const std::vector<Notification> list = ProfileStore(m_db).notifications(m_user->id);
        QCOMPARE(list.size(), size_t(100));
        for (size_t i = 0; i < list.size(); ++i)
            QCOMPARE(QString::fromStdString(list[i].message), QString::number(149 - i));
    }
};

QTEST_GUILESS_MAIN(DevServerLimitsTest)
#include "tst_devserver_limits.moc"
