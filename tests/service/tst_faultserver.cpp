// SPDX-License-Identifier: GPL-3.0-or-later
// The client against a server that misbehaves on purpose: whatever the server
// does, each request ends by its deadline and its caller prints its failure.
#include "account/LoginViewModel.h"
#include "common/StdoutCapture.h"
#include "records/AirQualityData.h"
#include "service/NetworkSession.h"
#include "service/PollutionHistoryClient.h"
#include "service/RecordFetch.h"

#include <QElapsedTimer>
#include <QNetworkAccessManager>
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

// One list fetched through the app's own fetcher: how it ended and when.
class Fetch
{
public:
    void start(const QString &behaviourUrl)
    {
        m_clock.start();
        fetchRecords<AirQualityData>(
            QUrl(behaviourUrl + QStringLiteral("/tarnelo/v1/airquality.php?lat=1&lon=2")), &m_context, [this](QVector<AirQualityData>) { end(listArrived); },
            [this](const QString &failure) { end(failure); });
    }

    bool ended() const { return !m_outcome.isNull(); }
    // The failure line, or listArrived.
    QString outcome() const { return m_outcome; }
    qint64 endedAfterMs() const { return m_endedAfterMs; }

private:
    void end(const QString &outcome)
    {
        m_outcome = outcome;
        m_endedAfterMs = m_clock.elapsed();
    }

    QObject m_context; // a fetch that never ends calls nothing once this is gone
    QElapsedTimer m_clock;
    QString m_outcome;
    qint64 m_endedAfterMs = -1;
};

template<typename Fetches> bool allEndWithin(const Fetches &fetches, int timeoutMs)
{
    return QTest::qWaitFor([&fetches] { return std::all_of(std::begin(fetches), std::end(fetches), [](const Fetch &fetch) { return fetch.ended(); }); },
                           timeoutMs);
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

    void redirectsStayWithinTheirOrigin()
    {
        Fetch hop[1];
        hop[0].start(url(QStringLiteral("hop")));
        QVERIFY(allEndWithin(hop, deadlineMs + slackMs));
        QCOMPARE(hop[0].outcome(), listArrived);

        // login.php carries the password in its query.
        qputenv("TARNELO_BACKEND_URL", url(QStringLiteral("away")).toUtf8());
        LoginViewModel login;
        login.setEmailAddress(QStringLiteral("amina@example.com"));
        login.setPasswordtxt(QStringLiteral("not-for-others"));
        bool answered = false;
        QStringList lines;
        {
            StdoutCapture capture;
            login.login();
            answered = QTest::qWaitFor([&login] { return !login.isLoading(); }, deadlineMs + slackMs);
            lines = capture.takeLines();
        }
        QVERIFY(answered);
        QCOMPARE(
            lines.filter(QStringLiteral("Error")),
            QStringList { QStringLiteral("Error: Redirect to another origin refused: https://127.0.0.2:%1/away/tarnelo/v1/login.php").arg(m_ready.value(2)) });
        QCOMPARE(login.alertMessage(), AccountScreenModel::unreachableMessage());
        QTest::qWait(200);
        QCOMPARE(m_server.readAllStandardOutput(), QByteArray());
    }

    void everyRequestEndsByItsDeadline()
    {
        // A TLS connection cut mid-body is noticed at once, deadline or not.
        Fetch cut[1];
        cut[0].start(url(QStringLiteral("cut")));
        QVERIFY(allEndWithin(cut, deadlineMs + slackMs));
        QCOMPARE(cut[0].outcome(), QStringLiteral("Failed to fetch data: Connection closed"));
        QVERIFY2(cut[0].endedAfterMs() < deadlineMs / 2, qPrintable(QString::number(cut[0].endedAfterMs())));

        // Six answers that never end hold every connection Qt opens to a
        // host; a request queued behind them gets through once they are cut.
        Fetch hung[6];
        Fetch later[1];
        bool ended = false;
        QStringList lines;
        {
            StdoutCapture capture;
            for (int i = 0; i < 6; ++i)
                hung[i].start(url(i % 2 ? QStringLiteral("trickle") : QStringLiteral("stall")));
            QTest::qWait(deadlineMs / 2);
            later[0].start(url(QStringLiteral("ok")));
            ended = allEndWithin(hung, deadlineMs + slackMs) && allEndWithin(later, deadlineMs);
            lines = capture.takeLines().filter(QStringLiteral("Failed"));
        }
        QVERIFY(ended);
        QCOMPARE(later[0].outcome(), listArrived);
        const QString expired = QStringLiteral("Failed to fetch data: No complete answer within 2 s");
        for (const Fetch &fetch : hung) {
            QCOMPARE(fetch.outcome(), expired);
            QVERIFY(fetch.endedAfterMs() >= deadlineMs);
        }
        QCOMPARE(lines.size(), 6);
        QCOMPARE(lines.count(expired), 6);
    }

    void oversizedAnswersAreCut()
    {
        Fetch big[2];
        big[0].start(url(QStringLiteral("big")));
        big[1].start(url(QStringLiteral("chunked")));
        QVERIFY(allEndWithin(big, deadlineMs + slackMs));
        for (const Fetch &fetch : big)
            QCOMPARE(fetch.outcome(), QStringLiteral("Failed to fetch data: Answer larger than 2097152 bytes"));

        // The history has a larger limit of its own.
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
    }
};

QTEST_GUILESS_MAIN(FaultServerTest)
#include "tst_faultserver.moc"
