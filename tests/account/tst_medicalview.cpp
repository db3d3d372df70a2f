// SPDX-License-Identifier: GPL-3.0-or-later
#include "AccountFixtures.h"
#include "common/QuickTestSetup.h"
#include "common/ScriptedResponder.h"

#include <QtQuickTest>

#include <memory>

// The screen's usual setup, with a signed-in user whose saved medical
// profile a scripted backend hands out.
class MedicalViewSetup : public QuickTestSetup
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        QuickTestSetup::applicationAvailable();
        m_responder->answer("/tarnelo/v1/checkmedicaldetails.php", 200,
                            R"([{"id":"3","userid":"12","conditionstatus":"Yes","conditionname":"Asthma","emergencycontact":"Juma Otieno",)"
                            R"("phonenumber":"0722 000111","relationship":"Spouse","weight":"64","height":"5.6","smokerstatus":"11-20 Moderate smoker",)"
                            R"("smoker":"Smoker","moredetails":"Inhaler before running; worse in dusty air.","scode":"1","messageresponse":"ok"}])");
        qputenv("TARNELO_BACKEND_URL", m_responder->url().toUtf8());
        storeAmina();
    }

private:
    std::unique_ptr<ScriptedResponder> m_responder = std::make_unique<ScriptedResponder>();
};

QUICK_TEST_MAIN_WITH_SETUP(medicalview, MedicalViewSetup)
#include "tst_medicalview.moc"
