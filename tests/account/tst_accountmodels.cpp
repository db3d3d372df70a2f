// SPDX-License-Identifier: GPL-3.0-or-later
// The login, registration and reset screens' models against a scripted backend.
#include "AnswerWait.h"
#include "account/EmailPattern.h"
#include "account/LoginViewModel.h"
#include "account/RegisterViewModel.h"
#include "account/ResetPasswordViewModel.h"
#include "common/ScriptedResponder.h"
#include "common/StdoutCapture.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <memory>

namespace
{
const std::string loginPath = "/tarnelo/v1/login.php";
const QString password = QStringLiteral("p&ss=w rd+é");
const QString passwordOnTheWire = QStringLiteral("p%26ss%3Dw%20rd%2B%C3%A9");

std::string answerWithCode(const char *code)
{
    return std::string(R"([{"userid":"12","fullname":"Amina Wanjiru","phonenumber":"0712","emailaddress":"amina@example.com","dateofbirth":"1990-04-02",)"
                       R"("gender":"2","registerdate":"2026-01-05","scode":")")
        + code + R"(","messageresponse":"Welcome back"}])";
}

} // namespace

class AccountModelsTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<ScriptedResponder> m_responder = std::make_unique<ScriptedResponder>();

    // Logs in as Amina with the tricky password and returns what was printed meanwhile.
    QStringList logIn(LoginViewModel &model)
    {
        StdoutCapture capture;
        model.setEmailAddress(QStringLiteral("  amina@example.com "));
        model.setPasswordtxt(password);
        model.login();
        waitUntilAnswered(model);
        return capture.takeLines();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("TARNELO_BACKEND_URL", m_responder->url().toUtf8());
    }

    void init()
    {
        SQliteLogin().deleteAll();
        m_responder->takeTargets();
    }

    void emailPattern_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("two-letter domain") << QStringLiteral("amina.w+aq@mail.example.co") << true;
        QTest::newRow("blanks around") << QStringLiteral(" \tamina@example.com  ") << true;
        QTest::newRow("one-letter domain") << QStringLiteral("amina@example.c") << false;
        QTest::newRow("blank inside") << QStringLiteral("amina w@example.com") << false;
        QTest::newRow("nothing before @") << QStringLiteral("@example.com") << false;
        QTest::newRow("trailing text") << QStringLiteral("amina@example.com;x") << false;
    }

    void emailPattern()
    {
        QFETCH(QString, address);
        QFETCH(bool, accepted);
        QCOMPARE(EmailPattern::accepts(address), accepted);
    }

    void refusedInputNeverReachesTheBackend()
    {
        LoginViewModel login;
        login.setEmailAddress(QStringLiteral("amina@example.com"));
        login.login();
        QCOMPARE(login.alertMessage(), QStringLiteral("Email address not added"));
        QVERIFY(login.showingAlert());
        login.setPasswordtxt(password);
        login.setEmailAddress(QStringLiteral("amina@example"));
        login.login();
        QCOMPARE(login.alertMessage(), QStringLiteral("Enter valid email address"));
        QVERIFY(!login.isLoading());

        ResetPasswordViewModel reset;
        reset.resetPassword();
        QCOMPARE(reset.alertMessage(), QStringLiteral("Email address not added"));
        reset.setEmailAddress(QStringLiteral("amina@"));
        reset.resetPassword();
        QCOMPARE(reset.alertMessage(), QStringLiteral("Enter valid email address"));

        RegisterViewModel registration;
        registration.setEmailAddress(QStringLiteral("amina@example.com"));
        registration.setPasswordtxt(password);
        registration.chooseOption(QStringLiteral("Female"));
        registration.registerAccount();
        QCOMPARE(registration.alertMessage(), QStringLiteral("Fullname, Email and Password Required"));
        RegisterViewModel withoutGender;
        withoutGender.setFullName(QStringLiteral("Amina Wanjiru"));
        withoutGender.setEmailAddress(QStringLiteral("amina@example"));
        withoutGender.setPasswordtxt(password);
        withoutGender.registerAccount();
        QCOMPARE(withoutGender.alertMessage(), QStringLiteral("Please select your gender"));

        QTest::qWait(100);
        QCOMPARE(m_responder->takeTargets(), QStringList());
    }

    void loginSendsTheTrimmedAddressAndTheWholePassword()
    {
        m_responder->answer(loginPath, 200, answerWithCode("1"));
        LoginViewModel model;
        const QStringList printed = logIn(model);
        QCOMPARE(m_responder->takeTargets(), QStringList { QStringLiteral("/tarnelo/v1/login.php?username=amina@example.com&passcode=") + passwordOnTheWire });
        for (const QString &line : printed)
            QVERIFY2(!line.contains(password) && !line.contains(passwordOnTheWire), qPrintable(line));
    }

    void acceptedLoginStartsTheSessionOnOk()
    {
        m_responder->answer(loginPath, 200, answerWithCode("1"));
        LoginViewModel model;
        QSignalSpy sessionStarted(&model, &LoginViewModel::sessionStarted);
        logIn(model);
        QVERIFY(model.showingAlert());
        QCOMPARE(model.alertMessage(), QStringLiteral("Welcome back"));
        QCOMPARE(model.dateFullname(), QStringLiteral("Amina Wanjiru"));
        QVERIFY2(SQliteLogin().readAll().isEmpty(), "nothing is kept before the user has read the answer");

        model.alertAccepted();
        QVERIFY(!model.showingAlert());
        QCOMPARE(sessionStarted.count(), 1);
        const User expected { QStringLiteral("12"),         QStringLiteral("Amina Wanjiru"),
                              QStringLiteral("0712"),       QStringLiteral("amina@example.com"),
                              QStringLiteral("1990-04-02"), QStringLiteral("2"),
                              QStringLiteral("2026-01-05") };
        QCOMPARE(SQliteLogin().readAll(), QList<User> { expected });
    }

    void refusedOrEmptyAnswerKeepsTheUserOut_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("alert");
        QTest::newRow("code 0") << QByteArray(answerWithCode("0").c_str()) << true;
        QTest::newRow("empty code") << QByteArray(answerWithCode("").c_str()) << false;
        QTest::newRow("no records") << QByteArray("[]") << false;
    }

    void refusedOrEmptyAnswerKeepsTheUserOut()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, alert);
        m_responder->answer(loginPath, 200, body.toStdString());
        LoginViewModel model;
        QSignalSpy sessionStarted(&model, &LoginViewModel::sessionStarted);
        logIn(model);
        QCOMPARE(model.showingAlert(), alert);
        model.alertAccepted();
        QCOMPARE(sessionStarted.count(), 0);
        QVERIFY(SQliteLogin().readAll().isEmpty());
    }

    void answerWithoutTheUserIsADecodingError()
    {
        m_responder->answer(loginPath, 200, R"([{"scode":"1","messageresponse":"Welcome back"}])");
        LoginViewModel model;
        QSignalSpy sessionStarted(&model, &LoginViewModel::sessionStarted);
        const QStringList printed = logIn(model);
        QCOMPARE(printed.filter(QStringLiteral("Error decoding JSON: ")).size(), 1);
        QCOMPARE(model.alertMessage(), QStringLiteral("Please click ok and try register again"));
        model.alertAccepted();
        QCOMPARE(sessionStarted.count(), 0);
    }

    void registrationSendsEveryFieldInTheBackendsOrder()
    {
        const QStringList genders = RegisterViewModel::options();
        for (int i = 0; i < genders.size(); ++i) {
            RegisterViewModel model;
            model.setFullName(QStringLiteral("Amina Wanjiru"));
            model.setEmailAddress(QStringLiteral(" amina@example.com"));
            model.setPasswordtxt(password);
            model.setDateOfBirth(1990, 4, 2);
            model.setPickerPresented(true);
            model.chooseOption(genders.at(i));
            QVERIFY(!model.isPickerPresented());
            model.registerAccount();
            QVERIFY(waitUntilAnswered(model));
            QCOMPARE(m_responder->takeTargets(),
                     QStringList { QStringLiteral("/tarnelo/v1/register.php?fullname=Amina%20Wanjiru&emailaddress=amina@example.com&phonenumber=1234567890"
                                                  "&dateofbirth=1990-04-02&password=")
                                   + passwordOnTheWire + QStringLiteral("&gender=") + QString::number(i + 1) + QStringLiteral("&referral_code=") });
        }
    }

    void dateOfBirthStaysARealDayInThePast()
    {
        RegisterViewModel model;
        QCOMPARE(model.dateOfBirth(), QDate::currentDate());
        model.setDateOfBirth(2000, 2, 31);
        QCOMPARE(model.dateOfBirth(), QDate(2000, 2, 29));
        model.setDateOfBirth(2000, 13, 1);
        QCOMPARE(model.dateOfBirth(), QDate(2000, 2, 29));
        model.setDateOfBirth(QDate::currentDate().year() + 1, 1, 1);
        QCOMPARE(model.dateOfBirth(), QDate::currentDate());
    }

    void acceptedResetAsksForAFreshLogin()
    {
        m_responder->answer("/tarnelo/v1/resetpass.php", 200, answerWithCode("1"));
        ResetPasswordViewModel model;
        QSignalSpy loginRequested(&model, &ResetPasswordViewModel::loginRequested);
        model.setEmailAddress(QStringLiteral("amina@example.com "));
        model.resetPassword();
        QVERIFY(waitUntilAnswered(model));
        QCOMPARE(m_responder->takeTargets(), QStringList { QStringLiteral("/tarnelo/v1/resetpass.php?emailaddress=amina@example.com") });
        QCOMPARE(model.alertMessage(), QStringLiteral("Welcome back"));
        model.alertAccepted();
        QCOMPARE(loginRequested.count(), 1);
    }

    // Last: the backend goes away for good.
    void unreachableBackendIsReported()
    {
        m_responder.reset();
        LoginViewModel model;
        const QStringList printed = logIn(model);
        QCOMPARE(printed.filter(QStringLiteral("Error: ")).size(), 1);
        QCOMPARE(model.alertMessage(), AccountScreenModel::unreachableMessage());
        for (const QString &line : printed)
            QVERIFY2(!line.contains(password) && !line.contains(passwordOnTheWire), qPrintable(line));
    }
};

QTEST_GUILESS_MAIN(AccountModelsTest)
#include "tst_accountmodels.moc"
