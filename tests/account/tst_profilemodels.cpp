// SPDX-License-Identifier: GPL-3.0-or-later
// The profile overview and the personal bio against a scripted backend.
#include "AccountFixtures.h"
#include "account/ProfileDetailsModel.h"
#include "account/ProfileViewModel.h"
#include "common/ScriptedResponder.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

class ProfileModelsTest : public QObject
{
    Q_OBJECT

    ScriptedResponder m_responder;

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
    }

    void init()
    {
        SQliteLogin().deleteAll();
        m_responder.answer("/tarnelo/v1/checksubscription.php", 200, "[]");
        m_responder.answer("/tarnelo/v1/checkmedical.php", 200, "[]");
        m_responder.takeTargets();
    }

    void storedGenderCodeReadsAsALabel_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("label");
        QTest::newRow("1") << QStringLiteral("1") << QStringLiteral("Male");
        QTest::newRow("2") << QStringLiteral("2") << QStringLiteral("Female");
        QTest::newRow("3") << QStringLiteral("3") << QStringLiteral("Others");
        QTest::newRow("unknown") << QStringLiteral("F") << QStringLiteral("Others");
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
        storeAmina();
        m_responder.answer("/tarnelo/v1/checksubscription.php", 200,
                           R"([{"id":"4","type":"Premium","package":"Monthly","status":"Active"},{"id":"5","type":"Old","package":"Old","status":"Old"}])");
        ProfileViewModel overview;
        QSignalSpy subscription(&overview, &ProfileViewModel::subscriptionChanged);
        QSignalSpy medical(&overview, &ProfileViewModel::medicalChanged);
        overview.refresh();
        QCOMPARE(overview.useriddata(), QStringLiteral("12"));
        QVERIFY(QTest::qWaitFor([&] { return subscription.count() > 0 && medical.count() > 0; }, 5000));
        QCOMPARE(QStringList({ overview.sStatus(), overview.sType(), overview.sCategory() }),
                 QStringList({ QStringLiteral("Active"), QStringLiteral("Premium"), QStringLiteral("Monthly") }));
        QCOMPARE(overview.conditionname(), QStringLiteral("Not Provided"));
    }

    void feedbackIsSentWholeAndOnlyWhenThereIsSome()
    {
        storeAmina();
        ProfileViewModel overview;
        overview.refresh();
        overview.sendFeedback();
        QCOMPARE(overview.alertMessage(), QStringLiteral("Please fill in your feedback"));
        QVERIFY(!overview.isLoading());

        m_responder.answer("/tarnelo/v1/feedbacks.php", 200, answerWithCode("1"));
        overview.setFeedbacks(QStringLiteral("Dust & smoke = bad #1"));
        overview.sendFeedback();
        QVERIFY(waitUntilAnswered(overview));
        // The empty one never left the device.
        QCOMPARE(m_responder.takeTargets().filter(QStringLiteral("feedbacks.php")),
                 QStringList { QStringLiteral("/tarnelo/v1/feedbacks.php?userid=12&feedback=Dust%20%26%20smoke%20%3D%20bad%20%231") });
        QCOMPARE(overview.feedbacks(), QString());

        // A refused note stays in the box to be sent again.
        m_responder.answer("/tarnelo/v1/feedbacks.php", 200, answerWithCode("0"));
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
        QSignalSpy loggedOut(&overview, &ProfileViewModel::loggedOut);
        overview.logout();
        QCOMPARE(SQliteLogin().readAll().size(), 1);

        overview.confirmLogout();
        QCOMPARE(loggedOut.count(), 1);
        QCOMPARE(overview.userId(), QStringLiteral("0"));
        QVERIFY(SQliteLogin().readAll().isEmpty());
        QVERIFY(QTest::qWaitFor([this] { return !m_responder.takeTargets().filter(QStringLiteral("logout.php?userid=12")).isEmpty(); }, 5000));

        overview.logout();
        overview.confirmLogout();
        QCOMPARE(loggedOut.count(), 1);
        QTest::qWait(100);
        QCOMPARE(m_responder.takeTargets(), QStringList());
    }

    void bioOpensWithTheStoredUser()
    {
        storeAmina();
        ProfileDetailsModel bio;
        QCOMPARE(bio.emailAddress(), QStringLiteral("amina@example.com"));
        QCOMPARE(bio.dateOfBirth(), QDate(1990, 4, 2));

        // A date the store cannot have meant leaves the picker on today, and nothing breaks.
        SQliteLogin().deleteAll();
        storeAmina(QStringLiteral("2"), QStringLiteral("02/04/1990"));
        ProfileDetailsModel odd;
        QCOMPARE(odd.dateOfBirth(), QDate::currentDate());
    }

    void acceptedBioReachesTheDeviceOnlyOnOk()
    {
        storeAmina();
        ProfileDetailsModel bio;
        bio.setFullName(QStringLiteral("Amina W. Otieno"));
        bio.setEmailAddress(QStringLiteral(" amina.o@example.com "));
        bio.setDateOfBirth(1991, 2, 30);
        bio.chooseOption(QStringLiteral("Others"));

        m_responder.answer("/tarnelo/v1/updateuser.php", 200, answerWithCode("0"));
        bio.update();
        QVERIFY(waitUntilAnswered(bio));
        bio.alertAccepted();
        QCOMPARE(SQliteLogin().readAll().first().fullname, QStringLiteral("Amina Wanjiru"));

        m_responder.answer("/tarnelo/v1/updateuser.php", 200, answerWithCode("1"));
        QSignalSpy userUpdated(&bio, &ProfileDetailsModel::userUpdated);
        bio.update();
        QVERIFY(waitUntilAnswered(bio));
        const QString target = QStringLiteral("/tarnelo/v1/updateuser.php?fullname=Amina%20W.%20Otieno&emailaddress=amina.o@example.com"
                                              "&phonenumber=1234567890&dateofbirth=1991-02-28&gender=3&userid=12");
        QCOMPARE(m_responder.takeTargets(), QStringList({ target, target }));
        QVERIFY2(SQliteLogin().readAll().first().fullname == QStringLiteral("Amina Wanjiru"), "nothing changes before the user read the answer");

        bio.alertAccepted();
        QCOMPARE(userUpdated.count(), 1);
        const User expected { QStringLiteral("12"),         QStringLiteral("Amina W. Otieno"),
                              QStringLiteral("0712"),       QStringLiteral("amina.o@example.com"),
                              QStringLiteral("1991-02-28"), QStringLiteral("3"),
                              QStringLiteral("2026-01-05") };
        QCOMPARE(SQliteLogin().readAll(), QList<User> { expected });

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
