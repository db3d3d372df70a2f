// SPDX-License-Identifier: GPL-3.0-or-later
// The notifications screen against a scripted backend, as a signed-in user.
#include "AccountFixtures.h"
#include "common/QuickTestSetup.h"
#include "common/ScriptedResponder.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

// The screens' usual setup; the QML test, as "backend", scripts the
// notification answer and reads the requests that reached it.
class NotificationViewSetup : public QuickTestSetup
{
    Q_OBJECT

public:
    Q_INVOKABLE void answer(const QString &body) { m_responder.answer("/tarnelo/v1/notification.php", 200, body.toStdString()); }
    Q_INVOKABLE QStringList takeTargets() { return m_responder.takeTargets(); }

public Q_SLOTS:
    void applicationAvailable()
    {
        QuickTestSetup::applicationAvailable();
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
        storeAmina();
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        QuickTestSetup::qmlEngineAvailable(engine);
        engine->rootContext()->setContextProperty(QStringLiteral("backend"), this);
    }

private:
    ScriptedResponder m_responder;
};

QUICK_TEST_MAIN_WITH_SETUP(notificationview, NotificationViewSetup)
#include "tst_notificationview.moc"
