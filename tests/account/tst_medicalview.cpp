// SPDX-License-Identifier: GPL-3.0-or-later
#include "AccountFixtures.h"
#include "common/QuickTestSetup.h"
#include "common/ScriptedResponder.h"

#include <QtQuickTest>

// The screen's usual setup, with a signed-in user whose saved medical
// profile a scripted backend hands out.
class MedicalViewSetup : public QuickTestSetup
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        QuickTestSetup::applicationAvailable();
        m_responder.answer("/tarnelo/v1/checkmedicaldetails.php", 200, savedMedicalProfile);
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
        storeAmina();
    }

private:
    ScriptedResponder m_responder;
};

QUICK_TEST_MAIN_WITH_SETUP(medicalview, MedicalViewSetup)
#include "tst_medicalview.moc"
