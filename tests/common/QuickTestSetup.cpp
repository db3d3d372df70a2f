// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/QuickTestSetup.h"

#include "shell/QmlTypes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QQmlContext>
#include <QQmlEngine>
#include <QStandardPaths>

#include <atomic>

namespace
{
std::atomic_int warnings { 0 };
QtMessageHandler previousHandler = nullptr;

void countWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        ++warnings;
    previousHandler(type, context, message);
}
} // namespace

void WarningCounter::restart()
{
    const QtMessageHandler current = qInstallMessageHandler(countWarnings);
    if (current != countWarnings)
        previousHandler = current;
    warnings = 0;
}

int WarningCounter::count() const
{
    return warnings;
}

void QuickTestSetup::applicationAvailable()
{
    QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
    QStandardPaths::setTestModeEnabled(true);
    // One data directory per test program, emptied before it starts.
    QCoreApplication::setApplicationName(QStringLiteral("tarnelo-tests-") + QFileInfo(QCoreApplication::applicationFilePath()).baseName());
    QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
}

void QuickTestSetup::qmlEngineAvailable(QQmlEngine *engine)
{
    QmlTypes::registerAll(*engine, &m_rootController);
    engine->rootContext()->setContextProperty(QStringLiteral("warnings"), &m_warnings);
}
