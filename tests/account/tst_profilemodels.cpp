// SPDX-License-Identifier: GPL-3.0-or-later
// The profile overview and the personal bio against a scripted backend.
#include "AnswerWait.h"
#include "account/ProfileDetailsModel.h"
#include "account/ProfileViewModel.h"
#include "common/ScriptedResponder.h"
#include "service/NetworkSession.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <memory>

namespace
{
std::string answerWithCode(const char *code)
{
    return std::string(R"([{"userid":"12","fullname":"Amina Wanjiru","phonenumber":"1234567890","emailaddress":"amina@example.com",)"
                       R"("dateofbirth":"1990-04-02","gender":"2","registerdate":"2026-01-05","scode":")")
        + code + R"(","messageresponse":"Done"}])";
}

void storeAmina(const QString &gender = QStringLiteral("2"), const QString &dateofbirth = QStringLiteral("1990-04-02"))
{
    SQliteLogin().insert(QStringLiteral("12"), QStringLiteral("Amina Wanjiru"), QStringLiteral("0712"), QStringLiteral("amina@example.com"), dateofbirth,
                         gender, QStringLiteral("2026-01-05"));
}

} // namespace

class ProfileModelsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<ScriptedResponder> m_responder = std::make_unique<ScriptedResponder>();

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("TARNELO_BACKEND_URL", m_responder->url().toUtf8());
    }

    void init()
    {
        SQliteLogin().deleteAll();
        m_responder->answer("/tarnelo/v1/checksubscription.php", 200, "[]");
        m_responder->answer("/tarnelo/v1/checkmedical.php", 200, "[]");
        m_responder->takeTargets();
    }

    void storedGenderCodeReadsAsALabel_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("label");
        QTest::newRow("1") << QStringLiteral("1") << QStringLiteral("Male");
        QTest::newRow("2") << QStringLiteral("2") << QStringLiteral("Female");
        QTest::newRow("3") << QStringLiteral("3") << QStringLiteral("Others");
        QTest::newRow("0") << QStringLiteral("0") << QStringLiteral("Others");
        QTest::newRow("empty") << QString() << QStringLiteral("Others");
        QTest::newRow("F") << QStringLiteral("F") << QStringLiteral("Others");
    }

    void storedGenderCodeReadsAsALabel()
    {
        QFETCH(QString, code);
        QFETCH(QString, label);
        storeAmina(code);
        ProfileViewModel overview;
        overview.refresh();
        QCOMPARE(overview.genderLine(), QStringLiteral("Gender : ") + label);
        ProfileDetailsModel bio;
        QCOMPARE(bio.selectedOption(), label);
    }

    void overviewShowsTheStoredUserAndWhatTheBackendKeeps()
    {
        ProfileViewModel guest;
        guest.refresh();
        QCOMPARE(guest.userId(), QStringLiteral("0"));
        QCOMPARE(QStringList({ guest.sStatus(), guest.sType(), guest.sCategory() }),
                 QStringList({ QStringLiteral("Account Not Active"), QStringLiteral("Guest User"), QStringLiteral("None") }));

        // Requests of the overviews of earlier cases may still be on their way.
        QTRY_VERIFY(sharedNetworkSession().findChildren<QNetworkReply *>().isEmpty());
        m_responder->takeTargets();
        storeAmina();
        m_responder->answer("/tarnelo/v1/checksubscription.php", 200,
                            R"([{"id":"4","type":"Premium","package":"Monthly","status":"Active"},{"id":"5","type":"Old","package":"Old","status":"Old"}])");
        ProfileViewModel overview;
        QSignalSpy subscription(&overview, &ProfileViewModel::subscriptionChanged);
        QSignalSpy medical(&overview, &ProfileViewModel::medicalChanged);
        overview.refresh();
        QCOMPARE(overview.fullnameVal(), QStringLiteral("Amina Wanjiru"));
        QCOMPARE(overview.useriddata(), QStringLiteral("12"));
        QVERIFY(QTest::qWaitFor([&] { return subscription.count() > 0 && medical.count() > 0; }, 5000));
        QCOMPARE(QStringList({ overview.sStatus(), overview.sType(), overview.sCategory() }),
                 QStringList({ QStringLiteral("Active"), QStringLiteral("Premium"), QStringLiteral("Monthly") }));
        QCOMPARE(overview.conditionstatus(), QStringLiteral("Not Provided"));
        QCOMPARE(overview.conditionname(), QStringLiteral("Not Provided"));
        QStringList targets = m_responder->takeTargets();
        targets.sort();
        QCOMPARE(targets,
                 QStringList({ QStringLiteral("/tarnelo/v1/checkmedical.php?userid=12"), QStringLiteral("/tarnelo/v1/checksubscription.php?userid=12") }));
    }

    void feedbackIsSentWholeAndOnlyWhenThereIsSome()
    {
        storeAmina();
        ProfileViewModel overview;
        overview.refresh();
        overview.sendFeedback();
        QCOMPARE(overview.alertMessage(), QStringLiteral("Please fill in your feedback"));
        QVERIFY(overview.showingAlert());
        QVERIFY(!overview.isLoading());
        overview.alertAccepted();

        m_responder->answer("/tarnelo/v1/feedbacks.php", 200, answerWithCode("1"));
        overview.setFeedbacks(QStringLiteral("Dust & smoke = bad #1"));
        overview.sendFeedback();
        QVERIFY(waitUntilAnswered(overview));
        // The empty one never left the device.
        QCOMPARE(m_responder->takeTargets().filter(QStringLiteral("feedbacks.php")),
                 QStringList { QStringLiteral("/tarnelo/v1/feedbacks.php?userid=12&feedback=Dust%20%26%20smoke%20%3D%20bad%20%231") });
        QCOMPARE(overview.alertMessage(), QStringLiteral("Done"));
        QCOMPARE(overview.feedbacks(), QString());

        // A refused note stays in the box to be sent again.
        m_responder->answer("/tarnelo/v1/feedbacks.php", 200, answerWithCode("0"));
        overview.setFeedbacks(QStringLiteral("again"));
        overview.sendFeedback();
        QVERIFY(waitUntilAnswered(overview));
        QCOMPARE(overview.feedbacks(), QStringLiteral("again"));
    }

    void logoutForgetsTheUserOnceAndOnlyAfterOk()
    {
        storeAmina();
        ProfileViewModel overview;
        overview.refresh();
        m_responder->takeTargets();
        QSignalSpy loggedOut(&overview, &ProfileViewModel::loggedOut);
        overview.logout();
        QVERIFY(overview.showingAlert1());
        QCOMPARE(SQliteLogin().readAll().size(), 1);

        overview.confirmLogout();
        QVERIFY(!overview.showingAlert1());
        QCOMPARE(loggedOut.count(), 1);
        QVERIFY(SQliteLogin().readAll().isEmpty());
        QVERIFY(QTest::qWaitFor([this] { return !m_responder->takeTargets().filter(QStringLiteral("logout.php?userid=12")).isEmpty(); }, 5000));

        overview.logout();
        overview.confirmLogout();
        QCOMPARE(loggedOut.count(), 1);
        QTest::qWait(100);
        QCOMPARE(m_responder->takeTargets(), QStringList());
    }

    void bioOpensWithTheStoredUser()
    {
        storeAmina(QStringLiteral("1"), QStringLiteral("1990-04-02"));
        ProfileDetailsModel bio;
        QCOMPARE(bio.fullName(), QStringLiteral("Amina Wanjiru"));
        QCOMPARE(bio.emailAddress(), QStringLiteral("amina@example.com"));
        QCOMPARE(bio.dateOfBirth(), QDate(1990, 4, 2));

        // A date the store cannot have meant leaves the picker on today, and nothing breaks.
        SQliteLogin().deleteAll();
        storeAmina(QStringLiteral("1"), QStringLiteral("02/04/1990"));
        ProfileDetailsModel odd;
        QCOMPARE(odd.dateOfBirth(), QDate::currentDate());
        QCOMPARE(odd.fullName(), QStringLiteral("Amina Wanjiru"));
    }

    void bioRefusesIncompleteInputWithoutSending()
    {
        ProfileDetailsModel guest;
        guest.setFullName(QStringLiteral("Amina"));
        guest.setEmailAddress(QStringLiteral("amina@example.com"));
        guest.update();
        QCOMPARE(guest.alertMessage(), QStringLiteral("Please select your gender"));

        storeAmina();
        ProfileDetailsModel bio;
        bio.setFullName(QString());
        bio.update();
        QCOMPARE(bio.alertMessage(), QStringLiteral("Fullname, Email and Password Required"));
        QVERIFY(!bio.isLoading());
        bio.alertAccepted();
        QTest::qWait(100);
        QCOMPARE(m_responder->takeTargets(), QStringList());
        QCOMPARE(SQliteLogin().readAll().first().fullname, QStringLiteral("Amina Wanjiru"));
    }

    void acceptedBioRewritesEveryStoredRowOnOk()
    {
        storeAmina();
        storeAmina();
        ProfileDetailsModel bio;
        bio.setFullName(QStringLiteral("Amina W. Otieno"));
        bio.setEmailAddress(QStringLiteral(" amina.o@example.com "));
        bio.setDateOfBirth(1991, 2, 30);
        bio.chooseOption(QStringLiteral("Others"));

        m_responder->answer("/tarnelo/v1/updateuser.php", 200, answerWithCode("0"));
        bio.update();
        QVERIFY(waitUntilAnswered(bio));
        bio.alertAccepted();
        QCOMPARE(SQliteLogin().readAll().first().fullname, QStringLiteral("Amina Wanjiru"));

        m_responder->answer("/tarnelo/v1/updateuser.php", 200, answerWithCode("1"));
        QSignalSpy userUpdated(&bio, &ProfileDetailsModel::userUpdated);
        bio.update();
        QVERIFY(waitUntilAnswered(bio));
        const QString target = QStringLiteral("/tarnelo/v1/updateuser.php?fullname=Amina%20W.%20Otieno&emailaddress=amina.o@example.com"
                                              "&phonenumber=1234567890&dateofbirth=1991-02-28&gender=3&userid=12");
        QCOMPARE(m_responder->takeTargets(), QStringList({ target, target }));
        QVERIFY2(SQliteLogin().readAll().first().fullname == QStringLiteral("Amina Wanjiru"), "nothing changes before the user read the answer");

        bio.alertAccepted();
        QCOMPARE(userUpdated.count(), 1);
        const User expected { QStringLiteral("12"),         QStringLiteral("Amina W. Otieno"),
                              QStringLiteral("0712"),       QStringLiteral("amina.o@example.com"),
                              QStringLiteral("1991-02-28"), QStringLiteral("3"),
                              QStringLiteral("2026-01-05") };
        QCOMPARE(SQliteLogin().readAll(), QList<User>({ expected, expected }));

        // The "OK" of a later refusal is no second go at the store.
        bio.setFullName(QString());
        bio.update();
        bio.alertAccepted();
        QCOMPARE(userUpdated.count(), 1);
        QCOMPARE(SQliteLogin().readAll().first().fullname, QStringLiteral("Amina W. Otieno"));
    }
};

QTEST_GUILESS_MAIN(ProfileModelsTest)
#include "tst_profilemodels.moc"
