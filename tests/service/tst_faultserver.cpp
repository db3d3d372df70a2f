// SPDX-License-Identifier: GPL-3.0-or-later
// The client against a server that misbehaves on purpose: whatever the server
// does, each request ends by its deadline with its failure.
#include "records/AirQualityData.h"
#include "service/NetworkSession.h"
#include "service/PollutionHistoryClient.h"
#include "service/RecordFetch.h"

#include <QNetworkReply>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <algorithm>

namespace
{
constexpr int deadlineMs = 2000;
// Time for a request to wind up after its deadline on a busy machine.
constexpr int slackMs = 1500;
const QString listArrived = QStringLiteral("(a list)");
const QString noAnswer = QStringLiteral("Failed to fetch data: No complete answer within 2 s");

// One list fetched through the app's own fetcher, and how it ended.
struct Fetch {
    QObject context; // a fetch that never ends calls nothing once this is gone
    QString outcome; // the failure line, or listArrived; null until it ends

    void start(const QString &behaviourUrl)
    {
        fetchRecords<AirQualityData>(
            QUrl(behaviourUrl + QStringLiteral("/tarnelo/v1/airquality.php?lat=1&lon=2")), &context, [this](QVector<AirQualityData>) { outcome = listArrived; },
            [this](const QString &failure) { outcome = failure; });
    }
};

// How many have ended once all have, or once `timeoutMs` has passed.
template<typename Fetches> int endedWithin(const Fetches &fetches, int timeoutMs)
{
    const auto ended
        = [&fetches] { return int(std::count_if(std::begin(fetches), std::end(fetches), [](const Fetch &fetch) { return !fetch.outcome.isNull(); })); };
    static_cast<void>(QTest::qWaitFor([&] { return ended() == int(std::size(fetches)); }, timeoutMs));
    return ended();
}
} // namespace

class FaultServerTest : public QObject
{
    Q_OBJECT

    // faultserver.py; it prints one line when ready, then one for each
    // request that reaches its other host.
    QProcess m_server;
    QStringList m_ready; // "ready", port, other host's port, certificate

    QString url(const QString &behaviour) const { return QStringLiteral("https://127.0.0.1:%1/").arg(m_ready.value(1)) + behaviour; }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        m_server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_server.start(QStringLiteral(TARNELO_PYTHON3), { QStringLiteral(TARNELO_FAULT_SERVER) });
        QVERIFY(QTest::qWaitFor([this] { return m_server.canReadLine(); }, 10000));
        m_ready = QString::fromUtf8(m_server.readLine()).trimmed().split(QLatin1Char(' '));
        QCOMPARE(m_ready.size(), 4);
        qputenv("TARNELO_CA_FILE", m_ready.at(3).toUtf8());
        qputenv("TARNELO_REQUEST_DEADLINE", QByteArray::number(deadlineMs / 1000));
    }

    // Six at once hold every connection Qt opens to a host, free again once
    // they end. Only an answer that never ends waits for the deadline; a TLS
    // connection cut mid-body, or an answer past the limit, ends before it.
    void everyRequestEndsByItsDeadline_data()
    {
        QTest::addColumn<QString>("behaviours"); // shared out among the six
        QTest::addColumn<QString>("outcome");
        const QString tooBig = QStringLiteral("Failed to fetch data: Answer larger than 2097152 bytes");
        QTest::newRow("no answer, or one that trickles") << QStringLiteral("stall,trickle") << noAnswer;
        QTest::newRow("redirect to the same origin") << QStringLiteral("hop") << listArrived;
        QTest::newRow("redirect to another origin") << QStringLiteral("away")
                                                    << QStringLiteral("Failed to fetch data: Redirect to another origin refused: "
                                                                      "https://127.0.0.2:%1/away/tarnelo/v1/airquality.php")
                                                           .arg(m_ready.value(2));
        QTest::newRow("cut") << QStringLiteral("cut") << QStringLiteral("Failed to fetch data: Connection closed");
        QTest::newRow("oversized") << QStringLiteral("big") << tooBig;
        QTest::newRow("oversized, chunked") << QStringLiteral("chunked") << tooBig;
    }

    void everyRequestEndsByItsDeadline()
    {
        QFETCH(QString, behaviours);
        QFETCH(QString, outcome);
        const QStringList behaviour = behaviours.split(QLatin1Char(','));
        Fetch fetches[6];
        for (int i = 0; i < 6; ++i)
            fetches[i].start(url(behaviour.at(i % behaviour.size())));
        // Each fetch's deadline runs from its start, a little before this
        // wait's; a busy machine may take a second over the big answers.
        QCOMPARE(endedWithin(fetches, deadlineMs * 9 / 10), outcome == noAnswer ? 0 : 6);
        QCOMPARE(endedWithin(fetches, deadlineMs + slackMs), 6);
        Fetch later[1];
        later[0].start(url(QStringLiteral("ok")));
        QCOMPARE(endedWithin(later, deadlineMs), 1);
        QCOMPARE(later[0].outcome, listArrived);
        for (const Fetch &fetch : fetches)
            QTEST(fetch.outcome, "outcome");
    }

    void historyHasALargerSizeLimit()
    {
        qputenv("TARNELO_HISTORY_URL", url(QStringLiteral("big")).toUtf8());
        QTest::ignoreMessage(QtWarningMsg, "History not received: \"Answer larger than 5242880 bytes\"");
        PollutionHistoryClient history;
        history.fetchHistory(QStringLiteral("1"), QStringLiteral("2"));
        QTRY_VERIFY_WITH_TIMEOUT(sharedNetworkSession().findChildren<QNetworkReply *>().isEmpty(), deadlineMs + slackMs);
    }

    void cleanupTestCase()
    {
        m_server.closeWriteChannel();
        QVERIFY(m_server.waitForFinished(3000));
        QCOMPARE(m_server.readAllStandardOutput(), QByteArray()); // nothing reached the other host
    }
};

QTEST_GUILESS_MAIN(FaultServerTest)
#include "tst_faultserver.moc"
