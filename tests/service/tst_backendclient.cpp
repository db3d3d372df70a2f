// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/ScriptedResponder.h"
#include "common/StdoutCapture.h"
#include "records/AirQualityData.h"
#include "service/BackendQuery.h"
#include "service/LocationLogUpload.h"
#include "service/NotificationUrl.h"
#include "service/PollutionHistoryClient.h"
#include "service/ProfileMedicalUrl.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTest>
#include <QThread>
#include <QUrlQuery>

#include <cmath>
#include <limits>
#include <memory>

namespace
{
const char historyKey[] = "3f1b7c9e2d4a6085b1e3c7f9a2d40e6b";
const std::string notifications = R"([{"id":"1","userid":"12","topic":"Welcome","message":"Hello","readmessage":"0","posteddate":"2026-11-20 08:00:00"},
{"id":"2","userid":"12","topic":"Smog","message":"Stay in","readmessage":"1","posteddate":"2026-11-21 08:00:00"}])";
} // namespace

class BackendClientTest : public QObject
{
    Q_OBJECT

    ScriptedResponder m_responder;

    // The target the responder received for a request text sent through the client.
    QString targetOf(const QString &text)
    {
        m_responder.takeTargets();
        bool answered = false;
        httpGet(requestUrl(text), this, [&answered](const HttpAnswer &) { answered = true; });
        if (!QTest::qWaitFor([&answered] { return answered; }, 5000))
            return QStringLiteral("(no answer)");
        return m_responder.takeTargets().value(0);
    }

    QString sent(BackendScript script, std::initializer_list<QueryValue> values) { return targetOf(backendRequestText(script, values)); }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8() + "/");
        qputenv("TARNELO_HISTORY_URL", m_responder.url().toUtf8());
        qputenv("TARNELO_OWM_KEY", historyKey);
        SQliteLogin store;
        store.deleteAll();
        store.insert(QStringLiteral("12"), QStringLiteral("Amina"), QString(), QString(), QString(), QString(), QString());
    }

    // Each screen's model test checks its own script's whole target; here the
    // catalogue's order wins over the caller's, and what must be encoded is.
    void scriptsArriveWithTheirKeysInOrder()
    {
        QCOMPARE(backendBaseUrl(), m_responder.url() + QStringLiteral("/tarnelo/v1/"));
        QCOMPARE(sent(BackendScript::Login, { { "passcode", QStringLiteral("a&b=c d+é#1") }, { "username", QStringLiteral("amina@example.com") } }),
                 QStringLiteral("/tarnelo/v1/login.php?username=amina@example.com&passcode=a%26b%3Dc%20d%2B%C3%A9%231"));
        QCOMPARE(sent(BackendScript::ResetPassword, { { "emailaddress", QStringLiteral("o'brien+air@example.com") } }),
                 QStringLiteral("/tarnelo/v1/resetpass.php?emailaddress=o'brien%2Bair@example.com"));
        QCOMPARE(sent(BackendScript::Feedbacks, { { "feedback", QStringLiteral("10/10 & more") }, { "userid", QStringLiteral("12") } }),
                 QStringLiteral("/tarnelo/v1/feedbacks.php?userid=12&feedback=10/10%20%26%20more"));
        QCOMPARE(sent(BackendScript::Weather, { { "lon", coordinateText(-0.1278) }, { "lat", coordinateText(51.5074) } }),
                 QStringLiteral("/tarnelo/v1/weatherapi.php?lat=51.5074&lon=-0.1278"));
    }

    void listFetchersPublishItemsOrTheirError()
    {
        m_responder.answer("/tarnelo/v1/notification.php", 200, notifications);
        NotificationUrl notification;
        QSignalSpy published(&notification, &ListFetcher::itemsChanged);
        notification.fetch();
        QVERIFY(notification.isLoading());
        QVERIFY(published.wait());
        QVERIFY(!notification.isLoading());
        QCOMPARE(notification.items().size(), 2);
        QCOMPARE(notification.items().at(1).topic, QStringLiteral("Smog"));
        QCOMPARE(notification.itemsForDisplay().at(0).toMap().value(QStringLiteral("posteddate")).toString(), QStringLiteral("2026-11-20 08:00:00"));
        QVERIFY(notification.errorMessage().isNull());
        QCOMPARE(m_responder.takeTargets(), QStringList { QStringLiteral("/tarnelo/v1/notification.php?userid=12") });

        m_responder.answer("/tarnelo/v1/checkmedical.php", 200, R"([{"id":"1","conditionstatus":1,"conditionname":"Asthma"}])");
        ProfileMedicalUrl medical;
        QSignalSpy failed(&medical, &ListFetcher::errorMessageChanged);
        StdoutCapture capture;
        medical.fetch();
        const bool failedInTime = failed.wait();
        const QStringList lines = capture.takeLines();
        QVERIFY(failedInTime);
        const QString expected = QStringLiteral("Failed to decode data: element 0: key \"conditionstatus\": expected a string, found a number");
        QCOMPARE(medical.errorMessage(), expected);
        QCOMPARE(lines.filter(QStringLiteral("Failed")), QStringList { expected });
        QVERIFY(medical.items().isEmpty());
    }

    void failuresPrintTheirLines()
    {
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        const QUrl refused(QStringLiteral("http://127.0.0.1:%1/tarnelo/v1/airquality.php?lat=1&lon=2").arg(closed.serverPort()));
        closed.close();
        m_responder.answer("/tarnelo/v1/airquality.php", 500, "<html>Internal Server Error</html>");

        QStringList failures;
        int lists = 0;
        const auto fetchOnce = [&](const QUrl &url) {
            const int before = failures.size() + lists;
            fetchRecords<AirQualityData>(
                url, this, [&lists](QVector<AirQualityData>) { ++lists; }, [&failures](const QString &message) { failures.append(message); });
            return QTest::qWaitFor([&] { return failures.size() + lists > before; }, 5000);
        };
        bool done = false;
        QStringList lines;
        {
            StdoutCapture capture;
            done = fetchOnce(refused)
                && fetchOnce(requestUrl(backendRequestText(BackendScript::AirQuality, { { "lat", QStringLiteral("1") }, { "lon", QStringLiteral("2") } })));
            sendLocationLog({ { "txt_aqi", QStringLiteral("2") }, { "txt_lat", QStringLiteral("-1.29") }, { "user_id", QStringLiteral("12") } }, this);
            sendLocationLog({ { "roundedCelsius", QStringLiteral("28 C") } }, this);
            lines = capture.takeLines();
        }

        QVERIFY(done);
        QCOMPARE(lists, 0);
        QCOMPARE(failures.size(), 2);
        QCOMPARE(failures.at(0), QStringLiteral("Failed to fetch data: Connection refused"));
        QVERIFY2(failures.at(1).startsWith(QLatin1String("Failed to decode data: ")), qPrintable(failures.at(1)));
        // Qt Test writes its own warnings to standard output too; keep the app's lines.
        lines = lines.filter(QRegularExpression(QStringLiteral("^(Failed|URL PRINT)")));
        QCOMPARE(lines.mid(0, 2), failures);
        const QString logs
            = m_responder.url()
            + QStringLiteral(
                  "/tarnelo/v1/locationlogs.php?txt_aqi=2&txt_co=&txt_no=&txt_no2=&txt_o3=&txt_so2=&txt_pm25=&txt_pm10=&txt_nh3=&roundedCelsius=&txt_humid="
                  "&txt_wind=&txt_uv=&txt_pollen=&txt_lat=-1.29&txt_log=&searchlat=&searchlog=&user_id=12");
        QCOMPARE(lines.value(2), QStringLiteral("URL PRINT LOGS  ") + logs);
        QVERIFY(lines.value(3).contains(QLatin1String("roundedCelsius=28 C")));
        QStringList targets;
        QTRY_VERIFY((targets += m_responder.takeTargets()).contains(logs.mid(m_responder.url().size())));
        QTest::qWait(200);
        QVERIFY2((targets + m_responder.takeTargets()).filter(QStringLiteral("28")).isEmpty(), "a URL with a blank in it must not be sent");
    }

    void historyAsksForTheLastSevenDays()
    {
        const QString prefix = m_responder.url() + QStringLiteral("/data/2.5/air_pollution/history?lat=-1.2921&lon=36.8219&start=");
        const auto text = [](double start, double end) {
            return PollutionHistoryClient::requestText(QStringLiteral("-1.2921"), QStringLiteral("36.8219"), start, end).value_or(QStringLiteral("(none)"));
        };
        QCOMPARE(text(1700000000.9, 1700000001.2), prefix + QStringLiteral("1699395200&end=1700000001&appid=") + QLatin1String(historyKey));
        // Truncated toward zero, not floored, on either side of zero.
        QCOMPARE(text(100.5, -0.5), prefix + QStringLiteral("-604699&end=0&appid=") + QLatin1String(historyKey));
        QCOMPARE(text(std::numeric_limits<double>::quiet_NaN(), 1), QStringLiteral("(none)"));
        QCOMPARE(text(1, 1e19), QStringLiteral("(none)"));

        m_responder.answer(
            "/data/2.5/air_pollution/history", 200,
            R"({"coord":{"lon":36.82,"lat":-1.29},"list":[{"main":{"aqi":2},"components":{"co":1},"dt":1700000000},{"main":{"aqi":4},"dt":1700003600}]})");
        PollutionHistoryClient client;
        QVector<AQIEntry> received;
        bool onMainThread = false;
        connect(&client, &PollutionHistoryClient::entriesReceived, this, [&](const QVector<AQIEntry> &entries) {
            received = entries;
            onMainThread = QThread::currentThread() == thread();
        });
        m_responder.takeTargets();
        client.fetchHistory(QStringLiteral("-1.2921"), QStringLiteral("36.8219"));
        QTRY_COMPARE(received.size(), 2);
        QVERIFY(onMainThread);
        QCOMPARE(received.at(1).main.aqi, 4);
        const QString target = m_responder.takeTargets().filter(QStringLiteral("/history?")).value(0);
        const QUrlQuery query(QUrl(target, QUrl::StrictMode));
        const qint64 gap = query.queryItemValue(QStringLiteral("end")).toLongLong() - query.queryItemValue(QStringLiteral("start")).toLongLong();
        QVERIFY2(gap >= 604800 && gap <= 604801, qPrintable(target));
    }
};

QTEST_GUILESS_MAIN(BackendClientTest)
#include "tst_backendclient.moc"
