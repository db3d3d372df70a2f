// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/DevServerProcess.h"
#include "common/QuickTestSetup.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

#include <memory>

// The screens' usual setup, plus the development backend with its demo
// account for the profile screens to talk to.
class ProfileViewSetup : public QuickTestSetup
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        QuickTestSetup::applicationAvailable();
        m_server = std::make_unique<DevServerProcess>();
        if (!m_server->isReady())
            qFatal("the development backend did not start: %s", qPrintable(m_server->consoleLines().join(QLatin1Char('\n'))));
        qputenv("TARNELO_BACKEND_URL", m_server->backendUrl().toString().toUtf8());
        qputenv("TARNELO_CA_FILE", m_server->caFile().toUtf8());
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        QuickTestSetup::qmlEngineAvailable(engine);
        engine->rootContext()->setContextProperty(QStringLiteral("demoEmail"), m_server->demoEmail());
        engine->rootContext()->setContextProperty(QStringLiteral("demoPassword"), m_server->demoPassword());
    }

private:
    std::unique_ptr<DevServerProcess> m_server;
};

QUICK_TEST_MAIN_WITH_SETUP(profileview, ProfileViewSetup)

#include "tst_profileview.moc"
