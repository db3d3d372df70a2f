// SPDX-License-Identifier: GPL-3.0-or-later
// The profile overview, the personal bio and the medical profile against a
// scripted backend.
#include "AccountFixtures.h"
#include "account/ProfileDetailsModel.h"
#include "account/ProfileMedicalViewModel.h"
#include "account/ProfileViewModel.h"
#include "common/ScriptedResponder.h"
#include "service/NetworkSession.h"

#include <QNetworkAccessManager>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

namespace
{
void fillTextFields(ProfileMedicalViewModel &model)
{
    model.setConditionname(QStringLiteral("Asthma & hay fever"));
    model.setEmergencycontact(QStringLiteral("Juma Otieno"));
    model.setMobilenumber(QStringLiteral("+254 712 000111"));
    model.setWeight(QStringLiteral("64"));
    model.setHeight(QStringLiteral("5.6"));
}
} // namespace

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

    // A kept-alive connection would hold the server's shutdown up for a second.
    void cleanupTestCase() { sharedNetworkSession().clearConnectionCache(); }

    void init()
    {
        SQliteLogin().deleteAll();
        storeAmina();
        m_responder.answer("/tarnelo/v1/savemedical.php", 200, answerWithCode("0"));
        m_responder.answer("/tarnelo/v1/checksubscription.php", 200, "[]");
        m_responder.answer("/tarnelo/v1/checkmedical.php", 200, "[]");
        m_responder.takeTargets();
    }

    // A stored date the store cannot have meant leaves the picker on today,
    // and nothing breaks.
    void storedUserFillsTheOverviewAndTheBio_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QDate>("shown");
        const QString day = QStringLiteral("1990-04-02");
        QTest::newRow("1") << QStringLiteral("1") << QStringLiteral("Male") << day << QDate(1990, 4, 2);
        QTest::newRow("2") << QStringLiteral("2") << QStringLiteral("Female") << day << QDate(1990, 4, 2);
        QTest::newRow("3") << QStringLiteral("3") << QStringLiteral("Others") << day << QDate(1990, 4, 2);
        QTest::newRow("unknown") << QStringLiteral("F") << QStringLiteral("Others") << QStringLiteral("02/04/1990") << QDate::currentDate();
    }

    void storedUserFillsTheOverviewAndTheBio()
    {
        QFETCH(QString, code);
        QFETCH(QString, label);
        QFETCH(QString, stored);
        QFETCH(QDate, shown);
        SQliteLogin().deleteAll();
        storeAmina(code, stored);
        ProfileViewModel overview;
        overview.refresh();
        QCOMPARE(overview.genderLine(), QStringLiteral("Gender : ") + label);
        ProfileDetailsModel bio;
        QCOMPARE(bio.selectedOption(), label);
        QCOMPARE(bio.emailAddress(), QStringLiteral("amina@example.com"));
        QCOMPARE(bio.dateOfBirth(), shown);
    }

    void overviewShowsTheStoredUserAndWhatTheBackendKeeps()
    {
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

    void acceptedBioReachesTheDeviceOnlyOnOk()
    {
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

    // Untouched pickers and details are sent as they stand; the category goes
    // under "smokerstatus" and the yes/no under "smoker". Unlike the other
    // account screens, a refusal here says to try again instead of passing the
    // backend's message on.
    void saveSendsEveryFieldAndARefusalAsksToTryAgain()
    {
        ProfileMedicalViewModel model;
        fillTextFields(model);
        model.setSmokingstatus(QStringLiteral("Smoker"));
        model.setSelectedCategory(QStringLiteral("Above 20 Heavy smoker"));
        model.save();
        QVERIFY(model.isLoading());
        QVERIFY(waitUntilAnswered(model));
        QCOMPARE(model.alertMessage(), QStringLiteral("Please click ok and try register again"));
        QCOMPARE(m_responder.takeTargets(),
                 QStringList { QStringLiteral("/tarnelo/v1/savemedical.php?userid=12&conditionstatus=Select&conditionname=Asthma%20%26%20hay%20fever"
                                              "&emergencycontact=Juma%20Otieno&phonenumber=%2B254%20712%20000111&relationship=Select&weight=64&height=5.6"
                                              "&smokerstatus=Above%2020%20Heavy%20smoker&smoker=Smoker"
                                              "&moredetails=Provide%20more%20details%20of%20the%20medical%20condition") });
    }

    void everyTextFieldIsRequired()
    {
        using M = ProfileMedicalViewModel;
        for (void (M::*blank)(const QString &) : { &M::setConditionname, &M::setEmergencycontact, &M::setMobilenumber, &M::setWeight, &M::setHeight }) {
            M model;
            fillTextFields(model);
            (model.*blank)(QStringLiteral("  "));
            model.save();
            QCOMPARE(model.alertMessage(), QStringLiteral("All fields are required"));
            QVERIFY(model.showingAlert() && !model.isLoading());
        }
        QTest::qWait(100);
        QCOMPARE(m_responder.takeTargets(), QStringList());
    }

    void storedDetailsFillTheForm()
    {
        m_responder.answer("/tarnelo/v1/checkmedicaldetails.php", 200, savedMedicalProfile);
        ProfileMedicalViewModel model;
        QSignalSpy changed(&model, &ProfileMedicalViewModel::inputChanged);
        model.profileMedD()->fetch();
        QVERIFY(changed.wait(5000));
        QVERIFY(m_responder.takeTargets().value(0).startsWith(QStringLiteral("/tarnelo/v1/checkmedicaldetails.php?userid=12&")));
        const QStringList shown { model.condition(),     model.conditionname(),  model.emergencycontact(), model.mobilenumber(),
                                  model.relationship(),  model.weight(),         model.height(),           model.selectedCategory(),
                                  model.smokingstatus(), model.valSmockstatus(), model.moredetails() };
        QCOMPARE(shown.join(QLatin1Char('|')),
                 QStringLiteral("Yes|Asthma|Juma Otieno|0722000111|Spouse|64|5.6|1-10 Light smoker|Smoker|"
                                "1-10 Light smoker|Inhaler at night"));
        QVERIFY(!model.isHidden());
    }

    void nonSmokerHidesAndResetsTheCategory()
    {
        ProfileMedicalViewModel model;
        model.setSmokingstatus(QStringLiteral("Smoker"));
        model.setSelectedCategory(QStringLiteral("Above 20 Heavy smoker"));
        QVERIFY(!model.isHidden());
        model.setSmokingstatus(QStringLiteral("Non-Smoker"));
        QVERIFY(model.isHidden());
        QCOMPARE(model.selectedCategory(), QStringLiteral("Non-Smoker"));
    }
};

QTEST_GUILESS_MAIN(ProfileModelsTest)
#include "tst_profilemodels.moc"
