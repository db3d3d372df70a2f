// SPDX-License-Identifier: GPL-3.0-or-later
// The window as the app builds it: its content replaced by the account flows.
#include "shell/QmlTypes.h"
#include "shell/RootController.h"

#include <QDir>
#include <QPointer>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QTest>

class TarneloAppTest : public QObject
{
    Q_OBJECT

private:
    QQuickItem *windowContent() const
    {
        auto *window = qobject_cast<QQuickWindow *>(m_engine->rootObjects().constFirst());
        const QList<QQuickItem *> loaders = window->contentItem()->childItems();
        return loaders.isEmpty() ? nullptr : loaders.constFirst()->property("item").value<QQuickItem *>();
    }

    RootController m_rootController;
    std::unique_ptr<QQmlApplicationEngine> m_engine;

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setApplicationName(QStringLiteral("tarnelo-tests-app-window"));
        QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
        m_engine = std::make_unique<QQmlApplicationEngine>();
        QmlTypes::registerAll(*m_engine, &m_rootController);
        m_engine->load(QUrl(QStringLiteral("qrc:/qml/TarneloApp.qml")));
        QCOMPARE(m_engine->rootObjects().size(), 1);
    }

    // The window's size and first picture are tst_app's; here what replaces its content.
    void everyReplacementIsAFreshScreen()
    {
        const QPointer<QQuickItem> firstHome = windowContent();
        QVERIFY(firstHome->property("model").isValid());
        m_rootController.showLogin();
        QTRY_VERIFY(!firstHome);
        QCOMPARE(windowContent()->objectName(), QStringLiteral("LoginView"));

        m_rootController.showHome();
        const QPointer<QQuickItem> secondHome = windowContent();
        QVERIFY(secondHome->property("model").isValid());
        m_rootController.showHome();
        QTRY_VERIFY(!secondHome);
        QVERIFY(windowContent()->property("model").isValid());
    }
};

QTEST_MAIN(TarneloAppTest)
#include "tst_tarneloapp.moc"
