// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/DevServerProcess.h"
#include "records/AirQualityData.h"
#include "records/JsonBody.h"
#include "records/LoginModel.h"
#include "records/WeatherData.h"
#include "service/BackendQuery.h"
#include "service/HttpGet.h"
#include "service/LocationLogUpload.h"
#include "service/NotificationUrl.h"
#include "service/PollutionHistoryClient.h"
#include "service/ProfileMedicalDetailsUrl.h"
#include "service/ProfileMedicalUrl.h"
#include "service/ProfileSubscriptiontUrl.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <memory>

// Every script and the history request, sent through the app's own client to
// the development backend over TLS, each answer decoded into its record.
class BackendRoundTripTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<DevServerProcess> m_server;

    HttpAnswer answerTo(BackendScript script, std::initializer_list<QueryValue> values)
    {
        std::optional<HttpAnswer> answer;
        httpGet(requestUrl(backendRequestText(script, values)), this, [&answer](const HttpAnswer &a) { answer = a; });
        if (!QTest::qWaitFor([&answer] { return answer.has_value(); }, 15000))
            return HttpAnswer { {}, QStringLiteral("no answer in time") };
        return *answer;
    }

    // The single account answer of a script, or a record whose message says what failed.
    LoginModel accountAnswer(BackendScript script, std::initializer_list<QueryValue> values)
    {
        const HttpAnswer answer = answerTo(script, values);
        const auto decoded = decodeList<LoginModel>(answer.body);
        if (!answer.received() || !decoded.ok() || decoded.value->size() != 1)
            return LoginModel { {}, {}, {}, {}, {}, {}, {}, QStringLiteral("fault"), answer.error + decoded.error + QString::fromUtf8(answer.body) };
        return decoded.value->first();
    }

    template<typename Fetcher> Fetcher *fetched()
    {
        auto *fetcher = new Fetcher(this);
        QSignalSpy done(fetcher, &ListFetcher::itemsChanged);
        fetcher->fetch();
        if (!done.wait(15000))
            qWarning() << "no items:" << fetcher->errorMessage();
        return fetcher;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        m_server = std::make_unique<DevServerProcess>();
        QVERIFY2(m_server->isReady(), qPrintable(m_server->consoleLines().join(QLatin1Char('\n'))));
        qputenv("TARNELO_BACKEND_URL", m_server->backendUrl().toString().toUtf8());
        qputenv("TARNELO_CA_FILE", m_server->caFile().toUtf8());
        qputenv("TARNELO_HISTORY_URL", m_server->historyUrl().toString().toUtf8());
        qputenv("TARNELO_OWM_KEY", DevServerProcess::historyKey().toUtf8());
        SQliteLogin().deleteAll();
    }

    void accountScripts()
    {
        const QString password = QStringLiteral("p&ss=word +é");
        const LoginModel registered = accountAnswer(BackendScript::Register,
                                                    { { "fullname", QStringLiteral("Amina Wanjiru") },
                                                      { "emailaddress", QStringLiteral("amina@example.com") },
                                                      { "phonenumber", QStringLiteral("1234567890") },
                                                      { "dateofbirth", QStringLiteral("1990-04-02") },
                                                      { "password", password },
                                                      { "gender", QStringLiteral("2") },
                                                      { "referral_code", QString() } });
        QCOMPARE(registered.scode, QStringLiteral("1"));
        const LoginModel login = accountAnswer(BackendScript::Login, { { "username", QStringLiteral("amina@example.com") }, { "passcode", password } });
        QCOMPARE(login.scode, QStringLiteral("1"));
        QCOMPARE(login.fullname, QStringLiteral("Amina Wanjiru"));
        QVERIFY(!login.userid.isEmpty());
        SQliteLogin().insert(login.userid, login.fullname, login.phonenumber, login.emailaddress, login.dateofbirth, login.gender, login.registerdate);

        const LoginModel updated = accountAnswer(BackendScript::UpdateUser,
                                                 { { "fullname", QStringLiteral("Amina W.") },
                                                   { "emailaddress", QStringLiteral("amina@example.com") },
                                                   { "phonenumber", QStringLiteral("1234567890") },
                                                   { "dateofbirth", QStringLiteral("1990-04-03") },
                                                   { "gender", QStringLiteral("2") },
                                                   { "userid", login.userid } });
        QCOMPARE(updated.scode, QStringLiteral("1"));
        QCOMPARE(updated.dateofbirth, QStringLiteral("1990-04-03"));
        const LoginModel saved = accountAnswer(BackendScript::SaveMedical,
                                               { { "userid", login.userid },
                                                 { "conditionstatus", QStringLiteral("1") },
                                                 { "conditionname", QStringLiteral("Asthma") },
                                                 { "emergencycontact", QStringLiteral("Wanjiku") },
                                                 { "phonenumber", QStringLiteral("0700000000") },
                                                 { "relationship", QStringLiteral("Sister") },
                                                 { "weight", QStringLiteral("65") },
                                                 { "height", QStringLiteral("170") },
                                                 { "smokerstatus", QStringLiteral("Non-Smoker") },
                                                 { "smoker", QStringLiteral("No") },
                                                 { "moredetails", QStringLiteral("Inhaler & spacer") } });
        QCOMPARE(saved.scode, QStringLiteral("1"));
        QCOMPARE(accountAnswer(BackendScript::Feedbacks, { { "userid", login.userid }, { "feedback", QStringLiteral("Clear & quick") } }).scode,
                 QStringLiteral("1"));

        const auto *details = fetched<ProfileMedicalDetailsUrl>();
        QCOMPARE(details->items().size(), 1);
        QCOMPARE(details->items().first().moredetails, QStringLiteral("Inhaler & spacer"));
        QCOMPARE(fetched<ProfileMedicalUrl>()->items().value(0).conditionname, QStringLiteral("Asthma"));
        QCOMPARE(fetched<ProfileSubscriptiontUrl>()->items().size(), 1);
        QVERIFY(!fetched<NotificationUrl>()->items().isEmpty());

        sendLocationLog({ { "txt_aqi", QStringLiteral("2") },
                          { "txt_co", QStringLiteral("201.9") },
                          { "txt_no", QStringLiteral("0.1") },
                          { "txt_no2", QStringLiteral("3.5") },
                          { "txt_o3", QStringLiteral("68.7") },
                          { "txt_so2", QStringLiteral("0.6") },
                          { "txt_pm25", QStringLiteral("4.2") },
                          { "txt_pm10", QStringLiteral("5.1") },
                          { "txt_nh3", QStringLiteral("0.9") },
                          { "roundedCelsius", QStringLiteral("28.0") },
                          { "txt_humid", QStringLiteral("40") },
                          { "txt_wind", QStringLiteral("12") },
                          { "txt_uv", QStringLiteral("5") },
                          { "txt_pollen", QStringLiteral("Low") },
                          { "txt_lat", QStringLiteral("-1.2921") },
                          { "txt_log", QStringLiteral("36.8219") },
                          { "searchlat", QStringLiteral("-1.2921") },
                          { "searchlog", QStringLiteral("36.8219") },
                          { "user_id", login.userid } },
                        this);
        QVERIFY(!m_server->waitForConsoleLine(QStringLiteral("locationlogs.php")).isEmpty());
        QCOMPARE(accountAnswer(BackendScript::Logout, { { "userid", login.userid } }).scode, QStringLiteral("1"));
        const LoginModel reset = accountAnswer(BackendScript::ResetPassword, { { "emailaddress", QStringLiteral("amina@example.com") } });
        QCOMPARE(reset.scode, QStringLiteral("1"));
        QCOMPARE(accountAnswer(BackendScript::Login, { { "username", QStringLiteral("amina@example.com") }, { "passcode", password } }).scode,
                 QStringLiteral("0"));
    }

    void readingsAndHistory()
    {
        const auto airQuality
            = decodeList<AirQualityData>(answerTo(BackendScript::AirQuality, { { "lat", coordinateText(-1.2921) }, { "lon", coordinateText(36.8219) } }).body);
        QVERIFY2(airQuality.ok(), qPrintable(airQuality.error));
        QCOMPARE(airQuality.value->size(), 1);
        const int category = airQuality.value->first().aqi.toInt();
        QVERIFY2(category >= 1 && category <= 6, qPrintable(airQuality.value->first().aqi));
        const auto weather
            = decodeList<WeatherData>(answerTo(BackendScript::Weather, { { "lat", coordinateText(51.5074) }, { "lon", coordinateText(-0.1278) } }).body);
        QVERIFY2(weather.ok(), qPrintable(weather.error));
        QCOMPARE(weather.value->size(), 1);

        PollutionHistoryClient history;
        int entries = -1;
        connect(&history, &PollutionHistoryClient::entriesReceived, this, [&entries](const QVector<AQIEntry> &list) { entries = list.size(); });
        history.fetchHistory(QStringLiteral("-1.2921"), QStringLiteral("36.8219"));
        QTRY_VERIFY_WITH_TIMEOUT(entries >= 0, 15000);
        // One entry an hour over seven days.
        QVERIFY2(entries >= 168 && entries <= 169, qPrintable(QString::number(entries)));
    }
};

QTEST_GUILESS_MAIN(BackendRoundTripTest)
#include "tst_backendroundtrip.moc"
