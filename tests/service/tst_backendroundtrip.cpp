// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/DevServerProcess.h"
#include "records/JsonBody.h"
#include "records/LoginModel.h"
#include "service/BackendQuery.h"
#include "service/ExtraAuthorities.h"
#include "service/HttpGet.h"
#include "service/PollutionHistoryClient.h"

#include <QTest>

// The app's own client against the development backend over TLS: what one
// side encodes the other decodes, each answer into its record. What each
// script does is the backend's own tests' business.
class BackendRoundTripTest : public QObject
{
    Q_OBJECT

    DevServerProcess m_server;

    // The single account answer of a script, or a record whose message says what failed.
    LoginModel accountAnswer(BackendScript script, std::initializer_list<QueryValue> values)
    {
        std::optional<HttpAnswer> reply;
        httpGet(requestUrl(backendRequestText(script, values)), this, [&reply](const HttpAnswer &a) { reply = a; });
        (void)QTest::qWaitFor([&reply] { return reply.has_value(); }, 15000);
        const HttpAnswer answer = reply.value_or(HttpAnswer { {}, QStringLiteral("no answer in time") });
        const auto decoded = decodeList<LoginModel>(answer.body);
        if (!answer.received() || !decoded.ok() || decoded.value->size() != 1)
            return LoginModel { {}, {}, {}, {}, {}, {}, {}, QStringLiteral("fault"), answer.error + decoded.error + QString::fromUtf8(answer.body) };
        return decoded.value->first();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_server.isReady(), qPrintable(m_server.consoleLines().join(QLatin1Char('\n'))));
        qputenv("TARNELO_BACKEND_URL", m_server.backendUrl().toString().toUtf8());
        qputenv("TARNELO_CA_FILE", m_server.caFile().toUtf8());
        qputenv("TARNELO_HISTORY_URL", m_server.historyUrl().toString().toUtf8());
        qputenv("TARNELO_OWM_KEY", DevServerProcess::historyKey().toUtf8());
    }

    // A password with every character the query encoding must escape.
    void accountScripts()
    {
        const QString password = QStringLiteral("p&ss=word +é");
        const LoginModel registered = accountAnswer(BackendScript::Register,
                                                    { { "fullname", QStringLiteral("Amina Wanjiru") },
                                                      { "emailaddress", QStringLiteral("amina@example.com") },
                                                      { "phonenumber", QStringLiteral("1234567890") },
                                                      { "dateofbirth", QStringLiteral("1990-04-02") },
                                                      { "password", password },
                                                      { "gender", QStringLiteral("2") } });
        QCOMPARE(registered.scode, QStringLiteral("1"));
        const LoginModel login = accountAnswer(BackendScript::Login, { { "username", QStringLiteral("amina@example.com") }, { "passcode", password } });
        QCOMPARE(login.scode, QStringLiteral("1"));
        QCOMPARE(login.fullname, QStringLiteral("Amina Wanjiru"));
    }

    // The readings are tst_devserver_upstream's; the history is read here only.
    void history()
    {
        PollutionHistoryClient history;
        int entries = -1;
        connect(&history, &PollutionHistoryClient::entriesReceived, this, [&entries](const QVector<AQIEntry> &list) { entries = list.size(); });
        history.fetchHistory(QStringLiteral("-1.2921"), QStringLiteral("36.8219"));
        QTRY_VERIFY_WITH_TIMEOUT(entries >= 0, 15000);
        // One entry an hour over seven days.
        QVERIFY2(entries >= 168 && entries <= 169, qPrintable(QString::number(entries)));
    }

    // The backend's own authority vouches only for the hosts its certificate names.
    void extraAuthorityVouchesForItsHostOnly()
    {
        const QList<QSslCertificate> backend = QSslCertificate::fromPath(m_server.caFile());
        QCOMPARE(backend.size(), 1);
        const ExtraAuthorities extra(backend);
        QVERIFY(extra.vouchFor(backend, QStringLiteral("127.0.0.1")));
        QVERIFY(!extra.vouchFor(backend, QStringLiteral("127.0.0.2")));
    }
};

QTEST_GUILESS_MAIN(BackendRoundTripTest)
#include "tst_backendroundtrip.moc"
