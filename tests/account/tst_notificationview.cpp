// SPDX-License-Identifier: GPL-3.0-or-later
// The notifications screen against a scripted backend, as a signed-in user.
#include "AccountFixtures.h"
#include "common/QuickTestSetup.h"
#include "common/ScriptedResponder.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

// Lets the QML test script the backend's notification answer and read the
// requests that reached it.
class ScriptedNotifications : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void answer(int status, const QString &body) { m_responder.answer("/tarnelo/v1/notification.php", status, body.toStdString()); }
    Q_INVOKABLE QStringList takeTargets() { return m_responder.takeTargets(); }
    QString url() const { return m_responder.url(); }

private:
    ScriptedResponder m_responder;
};

class NotificationViewSetup : public QuickTestSetup
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        QuickTestSetup::applicationAvailable();
        qputenv("TARNELO_BACKEND_URL", m_backend.url().toUtf8());
        storeAmina();
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        QuickTestSetup::qmlEngineAvailable(engine);
        engine->rootContext()->setContextProperty(QStringLiteral("backend"), &m_backend);
    }

private:
    ScriptedNotifications m_backend;
};

QUICK_TEST_MAIN_WITH_SETUP(notificationview, NotificationViewSetup)
#include "tst_notificationview.moc"
