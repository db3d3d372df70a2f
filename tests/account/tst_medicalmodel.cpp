// SPDX-License-Identifier: GPL-3.0-or-later
// The medical profile's model against a scripted backend: what it sends,
// what it refuses to send, what it reads back and how it reports the answer.
#include "AnswerWait.h"
#include "account/ProfileMedicalViewModel.h"
#include "common/ScriptedResponder.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

namespace
{
const std::string savePath = "/tarnelo/v1/savemedical.php";
const QString nonSmoker = QStringLiteral("Non-Smoker");

std::string saveAnswer(const char *code)
{
    return std::string(R"([{"userid":"12","fullname":"Amina Wanjiru","phonenumber":"0712","emailaddress":"amina@example.com","dateofbirth":"1990-04-02",)"
                       R"("gender":"2","registerdate":"2026-01-05","scode":")")
        + code + R"(","messageresponse":"Your medical details have been saved."}])";
}

void fillTextFields(ProfileMedicalViewModel &model)
{
    model.setConditionname(QStringLiteral("Asthma & hay fever"));
    model.setEmergencycontact(QStringLiteral("Juma Otieno"));
    model.setMobilenumber(QStringLiteral("+254 712 000111"));
    model.setWeight(QStringLiteral("64"));
    model.setHeight(QStringLiteral("5.6"));
}

} // namespace

class MedicalModelTest : public QObject
{
    Q_OBJECT

    ScriptedResponder m_responder;

    QString saveAndTakeTarget(ProfileMedicalViewModel &model)
    {
        model.save();
        if (!waitUntilAnswered(model))
            return QStringLiteral("no answer");
        const QStringList targets = m_responder.takeTargets();
        return targets.size() == 1 ? targets.first() : targets.join(QLatin1Char('|'));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
        SQliteLogin store;
        store.deleteAll();
        store.insert(QStringLiteral("12"), QStringLiteral("Amina Wanjiru"), QStringLiteral("0712"), QStringLiteral("amina@example.com"),
                     QStringLiteral("1990-04-02"), QStringLiteral("2"), QStringLiteral("2026-01-05"));
    }

    void init()
    {
        m_responder.answer(savePath, 200, saveAnswer("1"));
        m_responder.takeTargets();
    }

    void untouchedPickersAndDetailsAreSentAsTheyStand()
    {
        ProfileMedicalViewModel model;
        fillTextFields(model);
        QCOMPARE(saveAndTakeTarget(model),
                 QStringLiteral("/tarnelo/v1/savemedical.php?userid=12&conditionstatus=Select&conditionname=Asthma%20%26%20hay%20fever"
                                "&emergencycontact=Juma%20Otieno&phonenumber=%2B254%20712%20000111&relationship=Select&weight=64&height=5.6"
                                "&smokerstatus=Non-Smoker&smoker=Select&moredetails=Provide%20more%20details%20of%20the%20medical%20condition"));
    }

    void categoryGoesUnderSmokerstatusAndTheAnswerUnderSmoker()
    {
        ProfileMedicalViewModel model;
        fillTextFields(model);
        model.setCondition(QStringLiteral("Yes"));
        model.setRelationship(QStringLiteral("Sibling"));
        model.setSmokingstatus(QStringLiteral("Smoker"));
        model.setSelectedCategory(QStringLiteral("Above 20 Heavy smoker"));
        model.setMoredetails(QStringLiteral("Inhaler=2 puffs #daily"));
        QCOMPARE(saveAndTakeTarget(model),
                 QStringLiteral("/tarnelo/v1/savemedical.php?userid=12&conditionstatus=Yes&conditionname=Asthma%20%26%20hay%20fever"
                                "&emergencycontact=Juma%20Otieno&phonenumber=%2B254%20712%20000111&relationship=Sibling&weight=64&height=5.6"
                                "&smokerstatus=Above%2020%20Heavy%20smoker&smoker=Smoker&moredetails=Inhaler%3D2%20puffs%20%23daily"));
    }

    void everyTextFieldIsRequired_data()
    {
        QTest::addColumn<int>("emptied");
        QTest::addColumn<QString>("value");
        const char *names[] = { "conditionname", "emergencycontact", "mobilenumber", "weight", "height" };
        for (int i = 0; i < 5; ++i) {
            QTest::addRow("%s empty", names[i]) << i << QString();
            QTest::addRow("%s blank", names[i]) << i << QStringLiteral("  ");
        }
    }

    void everyTextFieldIsRequired()
    {
        QFETCH(int, emptied);
        QFETCH(QString, value);
        ProfileMedicalViewModel model;
        fillTextFields(model);
        void (ProfileMedicalViewModel::*const setters[])(const QString &) = {
            &ProfileMedicalViewModel::setConditionname, &ProfileMedicalViewModel::setEmergencycontact, &ProfileMedicalViewModel::setMobilenumber,
            &ProfileMedicalViewModel::setWeight,        &ProfileMedicalViewModel::setHeight,
        };
        (model.*setters[emptied])(value);
        model.save();
        QVERIFY(model.showingAlert());
        QCOMPARE(model.alertMessage(), QStringLiteral("All fields are required"));
        QVERIFY(!model.isLoading());
        QTest::qWait(100);
        QCOMPARE(m_responder.takeTargets(), QStringList());
    }

    void onlyAnAcceptedCodeConfirms_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("alert");
        QTest::addColumn<QString>("message");
        const QString retry = QStringLiteral("Please click ok and try register again");
        QTest::newRow("accepted") << QByteArray(saveAnswer("1").c_str()) << true << QStringLiteral("Your medical details have been saved.");
        QTest::newRow("refused") << QByteArray(saveAnswer("0").c_str()) << true << retry;
        QTest::newRow("no code") << QByteArray(saveAnswer("").c_str()) << true << retry;
        QTest::newRow("not a LoginModel") << QByteArray(R"([{"scode":"1"}])") << true << retry;
        QTest::newRow("no records") << QByteArray("[]") << false << QString();
    }

    void onlyAnAcceptedCodeConfirms()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, alert);
        QFETCH(QString, message);
        m_responder.answer(savePath, 200, body.toStdString());
        ProfileMedicalViewModel model;
        fillTextFields(model);
        model.save();
        QVERIFY(model.isLoading());
        QVERIFY(waitUntilAnswered(model));
        QCOMPARE(model.showingAlert(), alert);
        if (alert)
            QCOMPARE(model.alertMessage(), message);
        model.alertAccepted();
        QVERIFY(!model.showingAlert());
    }

    void storedDetailsFillTheForm()
    {
        m_responder.answer(
            "/tarnelo/v1/checkmedicaldetails.php", 200,
            R"([{"id":"3","userid":"12","conditionstatus":"Yes","conditionname":"Asthma","emergencycontact":"Juma Otieno",)"
            R"("phonenumber":"0722000111","relationship":"Spouse","weight":"64","height":"5.6","smokerstatus":"1-10 Light smoker",)"
            R"("smoker":"Smoker","moredetails":"Inhaler at night","scode":"1","messageresponse":"ok"},)"
            R"({"id":"2","userid":"12","conditionstatus":"No","conditionname":"old","emergencycontact":"old","phonenumber":"old",)"
            R"("relationship":"old","weight":"old","height":"old","smokerstatus":"old","smoker":"old","moredetails":"old","scode":"1","messageresponse":"ok"}])");
        ProfileMedicalViewModel model;
        QSignalSpy changed(&model, &ProfileMedicalViewModel::inputChanged);
        model.profileMedD()->fetch();
        QVERIFY(changed.wait(5000));
        QCOMPARE(m_responder.takeTargets(),
                 QStringList { QStringLiteral("/tarnelo/v1/checkmedicaldetails.php?userid=12&conditionstatus=0&conditionname=0&emergencycontact=0"
                                              "&phonenumber=0&relationship=0&weight=0&height=0&smoker=0&smokerstatus=0&moredetails=0") });
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
        QCOMPARE(model.smokingstatus(), QStringLiteral("Select"));
        QCOMPARE(model.selectedCategory(), nonSmoker);
        QVERIFY(!model.isHidden());
        QVERIFY(ProfileMedicalViewModel::smokingCategories().contains(QStringLiteral("Above 20 Heavy smoker")));
        model.setSmokingstatus(QStringLiteral("Smoker"));
        model.setSelectedCategory(QStringLiteral("Above 20 Heavy smoker"));
        QVERIFY(!model.isHidden());
        model.setSmokingstatus(nonSmoker);
        QVERIFY(model.isHidden());
        QCOMPARE(model.selectedCategory(), nonSmoker);
        model.setSmokingstatus(QStringLiteral("Smoker"));
        QVERIFY(!model.isHidden());
    }
};

QTEST_GUILESS_MAIN(MedicalModelTest)
#include "tst_medicalmodel.moc"
