// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/QuickTestSetup.h"
#include "common/ScriptedResponder.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

// What the history service answers, for the QML test to set.
class HistoryService : public QObject
{
    Q_OBJECT

public:
    explicit HistoryService(ScriptedResponder &responder)
        : m_responder(responder)
    {
    }

    Q_INVOKABLE void answer(int status, const QString &body) { m_responder.answer("/data/2.5/air_pollution/history", status, body.toStdString()); }

private:
    ScriptedResponder &m_responder;
};

// The backend and the history service on one scripted responder; the
// dashboard's other requests get an empty list.
class HistoryViewSetup : public QuickTestSetup
{
    Q_OBJECT

public:
    HistoryViewSetup()
    {
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
        qputenv("TARNELO_HISTORY_URL", m_responder.url().toUtf8());
    }

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        QuickTestSetup::qmlEngineAvailable(engine);
        engine->rootContext()->setContextProperty(QStringLiteral("historyService"), &m_service);
    }

private:
    ScriptedResponder m_responder;
    HistoryService m_service { m_responder };
};

QUICK_TEST_MAIN_WITH_SETUP(historyview, HistoryViewSetup)
#include "tst_historyview.moc"
