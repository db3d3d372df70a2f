// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/ScriptedResponder.h"
#include "common/QuickTestSetup.h"

#include <QtQuickTest>

// Every air-quality request the header sends gets one reading of category 4.
class AirQualityScreensSetup : public QuickTestSetup
{
public:
    AirQualityScreensSetup()
    {
        m_responder.answer("/tarnelo/v1/airquality.php", 200,
                           R"([{"id":"1","aqi":"4","co":"1201.6","no":"12.3","no2":"58.9","o3":"41","so2":"19.7","pm25":"88.4","pm10":"121","nh3":"6.2"}])");
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
    }

private:
    ScriptedResponder m_responder;
};

QUICK_TEST_MAIN_WITH_SETUP(airqualityscreens, AirQualityScreensSetup)
