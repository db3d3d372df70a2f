// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Database.h"
#include "server/HistoryService.h"
#include "server/Listeners.h"
#include "server/ProfileStore.h"
#include "server/ReadingSources.h"
#include "server/Schema.h"
#include "server/ScriptRouter.h"
#include "server/TlsCertificate.h"

#include <QElapsedTimer>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <memory>
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
class SlowClients
{
public:
    SlowClients()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            for (Client &client : m_clients)
                if (isReady(*client.socket))
                    client.socket->write(std::exchange(client.next, client.drip));
        });
        m_timer.start(100);
    }

    void add(int port, bool tls, int count, const QByteArray &opening = {}, const QByteArray &drip = {})
    {
        for (int i = 0; i < count; ++i)
            m_clients.push_back({ connectTo(port, tls), opening, drip });
    }

    int readyCount() const
    {
        return static_cast<int>(std::count_if(m_clients.begin(), m_clients.end(), [](const Client &client) { return isReady(*client.socket); }));
    }

private:
    struct Client {
        std::unique_ptr<QSslSocket> socket;
        QByteArray next;
        QByteArray drip;
    };
    std::vector<Client> m_clients;
    QTimer m_timer;
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
    client.set_ca_cert_path(server.tls.certificate);
    client.enable_server_certificate_verification(true);
    client.set_connection_timeout(10);
    client.set_read_timeout(10);
    const httplib::Result answer = client.Get("/tarnelo/v1/none.php");
    return answer ? timer.elapsed() : -1;
}

// The same code serves both listeners; these cases check both.
void bothListeners()
{
    QTest::addColumn<bool>("tls");
    QTest::newRow("https") << true;
    QTest::newRow("http") << false;
}

// How many of the pipelined requests' answers are in the text, in order.
int answersInOrder(const QByteArray &received, int count)
{
    int position = 0;
    for (int i = 0; i < count; ++i) {
        position = received.indexOf("/pipelined/" + QByteArray::number(i) + '"', position);
        if (position < 0)
            return i;
    }
    return count;
}
} // namespace

// What one client may cost the backend: slow and silent clients neither hold
// up others nor stay for ever, pipelined requests all get answers, and a long
// list is answered in part.
class DevServerLimitsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // As the server's main() does: a client that hangs up must not end the process.
        std::signal(SIGPIPE, SIG_IGN);
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

        std::vector<qint64> latencies;
        for (int i = 0; i < 7; ++i) {
            latencies.push_back(normalRequestMs(*server));
            QTest::qWait(20);
        }
        std::sort(latencies.begin(), latencies.end());
        qInfo("Normal requests beside 64 slow connections: min %lld ms, median %lld ms, max %lld ms", latencies.front(), latencies[3], latencies.back());
        QVERIFY(latencies.front() >= 0);
        QVERIFY2(latencies[3] < 100, "the median request took 100 ms or more");
        QCOMPARE(slow.readyCount(), 64); // they were all still there

        QElapsedTimer stopping;
        stopping.start();
        server->listeners.stop();
        QVERIFY2(stopping.elapsed() < 1000, "stopping waited for the slow connections");
    }

    void trickledRequestIsCutOff_data() { bothListeners(); }

    void trickledRequestIsCutOff()
    {
        QFETCH(bool, tls);
        LocalListeners server(ConnectionLimits { 1s });
        SlowClients slow;
        QElapsedTimer sinceConnect;
        sinceConnect.start();
        slow.add(tls ? server.listeners.httpsPort() : server.listeners.httpPort(), tls, 1, requestLine, "x");
        QTRY_COMPARE_WITH_TIMEOUT(slow.readyCount(), 1, 1000);
        QTRY_COMPARE_WITH_TIMEOUT(slow.readyCount(), 0, 3000);
        QVERIFY2(sinceConnect.elapsed() >= 950 && sinceConnect.elapsed() < 2000, qPrintable(QString::number(sinceConnect.elapsed())));
    }

    void pipelinedRequestsAreAllAnswered_data() { bothListeners(); }

    void pipelinedRequestsAreAllAnswered()
    {
        QFETCH(bool, tls);
        LocalListeners server(ConnectionLimits {});
        const std::unique_ptr<QSslSocket> socket = connectTo(tls ? server.listeners.httpsPort() : server.listeners.httpPort(), tls);
        QTRY_VERIFY_WITH_TIMEOUT(isReady(*socket), 5000);
        for (int i = 0; i < 50; ++i)
            socket->write("GET /pipelined/" + QByteArray::number(i) + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
        QByteArray received;
        const auto answered = [&received, &socket] { return answersInOrder(received += socket->readAll(), 50); };
        QTRY_COMPARE_WITH_TIMEOUT(answered(), 50, 5000);
    }

    void notificationListHoldsTheNewest100()
    {
        QTemporaryDir dir;
        Database db(dir.filePath(QStringLiteral("list.sqlite")).toStdString());
        createSchema(db);
        std::int64_t newest = 0;
        {
            Database::Session session(db);
            session.execute("INSERT INTO users (id, fullname, email, phone, dateofbirth, gender, password_hash, registered) "
                            "VALUES (7, 'N', 'n@example.test', '', '', '', 'x', '2026-01-01 00:00:00')");
            session.execute("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 149) "
                            "INSERT INTO notifications (user_id, topic, message, posted) SELECT 7, 'Topic', i, '2026-01-01 00:00:00' FROM n");
            newest = session.lastInsertId();
        }
        const std::vector<Notification> list = ProfileStore(db).notifications(7);
        QCOMPARE(list.size(), size_t(100));
        for (size_t i = 0; i < list.size(); ++i)
            QCOMPARE(list[i].id, newest - static_cast<std::int64_t>(i));
        QCOMPARE(QString::fromStdString(list.front().message), QStringLiteral("149"));
    }
};

QTEST_GUILESS_MAIN(DevServerLimitsTest)
#include "tst_devserver_limits.moc"
