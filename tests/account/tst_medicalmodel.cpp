// SPDX-License-Identifier: GPL-3.0-or-later
// The medical profile's model against a scripted backend: what it sends,
// what it refuses to send, what it reads back and how it reports the answer.
#include "AccountFixtures.h"
#include "account/ProfileMedicalViewModel.h"
#include "common/ScriptedResponder.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

namespace
{
const std::string savePath = "/tarnelo/v1/savemedical.php";
const QString nonSmoker = QStringLiteral("Non-Smoker");

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

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
        SQliteLogin().deleteAll();
        storeAmina();
    }

    void init()
    {
        m_responder.answer(savePath, 200, answerWithCode("1"));
        m_responder.takeTargets();
    }

    // Untouched pickers and details are sent as they stand; the category goes
    // under "smokerstatus" and the yes/no under "smoker".
    void saveSendsEveryFieldUnderTheBackendsKey()
    {
        ProfileMedicalViewModel model;
        fillTextFields(model);
        model.setSmokingstatus(QStringLiteral("Smoker"));
        model.setSelectedCategory(QStringLiteral("Above 20 Heavy smoker"));
        model.save();
        QVERIFY(waitUntilAnswered(model));
        QCOMPARE(m_responder.takeTargets(),
                 QStringList { QStringLiteral("/tarnelo/v1/savemedical.php?userid=12&conditionstatus=Select&conditionname=Asthma%20%26%20hay%20fever"
                                              "&emergencycontact=Juma%20Otieno&phonenumber=%2B254%20712%20000111&relationship=Select&weight=64&height=5.6"
                                              "&smokerstatus=Above%2020%20Heavy%20smoker&smoker=Smoker"
                                              "&moredetails=Provide%20more%20details%20of%20the%20medical%20condition") });
    }

    void everyTextFieldIsRequired_data()
    {
        QTest::addColumn<int>("blanked");
        const char *names[] = { "conditionname", "emergencycontact", "mobilenumber", "weight", "height" };
        for (int i = 0; i < 5; ++i)
            QTest::newRow(names[i]) << i;
    }

    void everyTextFieldIsRequired()
    {
        QFETCH(int, blanked);
        ProfileMedicalViewModel model;
        fillTextFields(model);
        void (ProfileMedicalViewModel::*const setters[])(const QString &) = {
            &ProfileMedicalViewModel::setConditionname, &ProfileMedicalViewModel::setEmergencycontact, &ProfileMedicalViewModel::setMobilenumber,
            &ProfileMedicalViewModel::setWeight,        &ProfileMedicalViewModel::setHeight,
        };
        (model.*setters[blanked])(QStringLiteral("  "));
        model.save();
        QCOMPARE(model.alertMessage(), QStringLiteral("All fields are required"));
        QVERIFY(model.showingAlert() && !model.isLoading());
        QTest::qWait(100);
        QCOMPARE(m_responder.takeTargets(), QStringList());
    }

    // Unlike the other account screens, a refusal here says to try again
    // instead of passing the backend's message on.
    void refusedSaveAsksToTryAgain()
    {
        m_responder.answer(savePath, 200, answerWithCode("0"));
        ProfileMedicalViewModel model;
        fillTextFields(model);
        model.save();
        QVERIFY(model.isLoading());
        QVERIFY(waitUntilAnswered(model));
        QCOMPARE(model.alertMessage(), QStringLiteral("Please click ok and try register again"));
    }

    void storedDetailsFillTheForm()
    {
        m_responder.answer("/tarnelo/v1/checkmedicaldetails.php", 200,
                           R"([{"id":"3","userid":"12","conditionstatus":"Yes","conditionname":"Asthma","emergencycontact":"Juma Otieno",)"
                           R"("phonenumber":"0722000111","relationship":"Spouse","weight":"64","height":"5.6","smokerstatus":"1-10 Light smoker",)"
                           R"("smoker":"Smoker","moredetails":"Inhaler at night","scode":"1","messageresponse":"ok"}])");
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
        model.setSmokingstatus(nonSmoker);
        QVERIFY(model.isHidden());
        QCOMPARE(model.selectedCategory(), nonSmoker);
    }
};

QTEST_GUILESS_MAIN(MedicalModelTest)
#include "tst_medicalmodel.moc"
