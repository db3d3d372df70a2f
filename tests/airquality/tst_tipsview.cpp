// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/ScriptedResponder.h"
#include "common/QuickTestSetup.h"

#include <QtQuickTest>

// Every air-quality and weather request gets one reading.
class TipsViewSetup : public QuickTestSetup
{
public:
    TipsViewSetup()
    {
        m_responder.answer("/tarnelo/v1/airquality.php", 200,
                           R"([{"id":"1","aqi":"3","co":"230.5","no":"0.4","no2":"21","o3":"80","so2":"2.1","pm25":"38.2","pm10":"51","nh3":"1.5"}])");
        m_responder.answer("/tarnelo/v1/weatherapi.php", 200, R"([{"id":"1","temp":"297.4","humid":"64","wind":"11","uv":"6","pollen":"Moderate"}])");
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
    }

private:
    ScriptedResponder m_responder;
};

QUICK_TEST_MAIN_WITH_SETUP(tipsview, TipsViewSetup)
