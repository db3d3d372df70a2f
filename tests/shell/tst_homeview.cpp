// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/QmlTypes.h"
#include "shell/RootController.h"
#include "shell/WindowGrab.h"

#include <QCoreApplication>
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QtQuickTest>

// Lets a QML test save what the window shows, as the app's --screenshot does.
class Screenshots : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE bool save(QQuickItem *item, const QString &fileName)
    {
        QDir().mkpath(QStringLiteral(TARNELO_SCREENSHOT_DIR));
        return WindowGrab::grab(item->window()).save(QStringLiteral(TARNELO_SCREENSHOT_DIR "/") + fileName, "PNG");
    }
};

class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setApplicationName(QStringLiteral("tarnelo-tests-homeview"));
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        QmlTypes::registerAll(*engine, &m_rootController);
        engine->rootContext()->setContextProperty(QStringLiteral("screenshots"), &m_screenshots);
    }

private:
    RootController m_rootController;
    Screenshots m_screenshots;
};

QUICK_TEST_MAIN_WITH_SETUP(homeview, Setup)
#include "tst_homeview.moc"
