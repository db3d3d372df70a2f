// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/QuickTestSetup.h"
#include "common/ScriptedResponder.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

// The backend and the history service on one scripted responder: every
// air-quality request gets one reading of category 4, every weather request
// one reading; the QML test sets what the history service answers.
class AirQualityScreensSetup : public QuickTestSetup
{
    Q_OBJECT

public:
    AirQualityScreensSetup()
    {
        m_responder.answer("/tarnelo/v1/airquality.php", 200,
                           R"([{"id":"1","aqi":"4","co":"230.5","no":"0.4","no2":"21","o3":"80","so2":"2.1","pm25":"38.2","pm10":"51","nh3":"1.5"}])");
        m_responder.answer("/tarnelo/v1/weatherapi.php", 200, R"([{"id":"1","temp":"297.4","humid":"64","wind":"11","uv":"6","pollen":"Moderate"}])");
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
        qputenv("TARNELO_HISTORY_URL", m_responder.url().toUtf8());
    }

    Q_INVOKABLE void answerHistory(int status, const QString &body) { m_responder.answer("/data/2.5/air_pollution/history", status, body.toStdString()); }

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        QuickTestSetup::qmlEngineAvailable(engine);
        engine->rootContext()->setContextProperty(QStringLiteral("backend"), this);
    }

private:
    ScriptedResponder m_responder;
};

QUICK_TEST_MAIN_WITH_SETUP(airqualityscreens, AirQualityScreensSetup)
#include "tst_airqualityscreens.moc"
