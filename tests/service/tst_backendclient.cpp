// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/ScriptedResponder.h"
#include "common/StdoutCapture.h"
#include "records/AirQualityData.h"
#include "service/BackendQuery.h"
#include "service/HttpGet.h"
#include "service/LocationLogUpload.h"
#include "service/PollutionHistoryClient.h"
#include "service/RecordFetch.h"

#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include <limits>

class BackendClientTest : public QObject
{
    Q_OBJECT

    static constexpr char historyKey[] = "3f1b7c9e2d4a6085b1e3c7f9a2d40e6b";
    ScriptedResponder m_responder;

    // The target the responder received for a script sent through the client.
    QString sent(BackendScript script, std::initializer_list<QueryValue> values)
    {
        m_responder.takeTargets();
        bool answered = false;
        httpGet(requestUrl(backendRequestText(script, values)), this, [&answered](const HttpAnswer &) { answered = true; });
        if (!QTest::qWaitFor([&answered] { return answered; }, 5000))
            return QStringLiteral("(no answer)");
        return m_responder.takeTargets().value(0);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8() + "/");
        qputenv("TARNELO_HISTORY_URL", m_responder.url().toUtf8());
        qputenv("TARNELO_OWM_KEY", historyKey);
    }

    // Each screen's model test checks its own script's whole target; here the
    // catalogue's order wins over the caller's, and what must be encoded is.
    void scriptsArriveWithTheirKeysInOrder()
    {
        QCOMPARE(sent(BackendScript::Login, { { "passcode", QStringLiteral("a&b=c d+é#1") }, { "username", QStringLiteral("amina@example.com") } }),
                 QStringLiteral("/tarnelo/v1/login.php?username=amina@example.com&passcode=a%26b%3Dc%20d%2B%C3%A9%231"));
        QCOMPARE(sent(BackendScript::Weather, { { "lon", coordinateText(-0.1278) }, { "lat", coordinateText(51.5074) } }),
                 QStringLiteral("/tarnelo/v1/weatherapi.php?lat=51.5074&lon=-0.1278"));
    }

    // The location log is printed whole, its missing keys blank, and is never
    // sent when a value has a blank in it.
    void failuresPrintTheirLines()
    {
        m_responder.answer("/tarnelo/v1/airquality.php", 500, "<html>Internal Server Error</html>");
        const QUrl undecodable = requestUrl(backendRequestText(BackendScript::AirQuality, { { "lat", QStringLiteral("1") }, { "lon", QStringLiteral("2") } }));
        QStringList failures;
        QStringList lines;
        {
            StdoutCapture capture;
            for (const QUrl &url : { QUrl(QStringLiteral("http://127.0.0.1:1/")), undecodable })
                fetchRecords<AirQualityData>(
                    url, this, [](QVector<AirQualityData>) {}, [&failures](const QString &message) { failures.append(message); });
            (void)QTest::qWaitFor([&failures] { return failures.size() == 2; }, 5000);
            sendLocationLog({ { "txt_aqi", QStringLiteral("2") }, { "txt_lat", QStringLiteral("-1.29") }, { "user_id", QStringLiteral("12") } }, this);
            sendLocationLog({ { "roundedCelsius", QStringLiteral("28 C") } }, this);
            lines = capture.takeLines();
        }

        // Qt Test writes its own warnings to standard output too; keep the app's lines.
        QCOMPARE(lines.filter(QRegularExpression(QStringLiteral("^Failed"))), failures);
        failures.sort();
        QVERIFY2(failures.value(0).startsWith(QLatin1String("Failed to decode data: ")), qPrintable(failures.value(0)));
        QCOMPARE(failures.value(1), QStringLiteral("Failed to fetch data: Connection refused"));
        const QString logs
            = QStringLiteral("/tarnelo/v1/locationlogs.php?txt_aqi=2&txt_co=&txt_no=&txt_no2=&txt_o3=&txt_so2=&txt_pm25=&txt_pm10=&txt_nh3=&roundedCelsius="
                             "&txt_humid=&txt_wind=&txt_uv=&txt_pollen=&txt_lat=-1.29&txt_log=&searchlat=&searchlog=&user_id=12");
        const QStringList printedLogs = lines.filter(QRegularExpression(QStringLiteral("^URL PRINT LOGS  ")));
        QCOMPARE(printedLogs.value(0), QStringLiteral("URL PRINT LOGS  ") + m_responder.url() + logs);
        QVERIFY(printedLogs.value(1).contains(QLatin1String("roundedCelsius=28 C")));
        QStringList targets;
        QTRY_VERIFY((targets += m_responder.takeTargets()).contains(logs));
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
    }
};

QTEST_GUILESS_MAIN(BackendClientTest)
#include "tst_backendclient.moc"
