// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SelfTest.h"

#include "shell/HomeDestinations.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>

#include <memory>

namespace
{
int problems = 0;
QtMessageHandler previousHandler = nullptr;

void countProblems(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        ++problems;
    previousHandler(type, context, message);
}

void load(QQmlEngine &engine, const QString &view)
{
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/qml/") + view + QStringLiteral(".qml")));
    const std::unique_ptr<QObject> screen(component.create());
    if (!screen) {
        qCritical("%s could not be built: %s", qPrintable(view), qPrintable(component.errorString()));
        return;
    }
    qInfo("%s built", qPrintable(view));
}
} // namespace

int SelfTest::run(QQmlEngine &engine)
{
    previousHandler = qInstallMessageHandler(countProblems);
    load(engine, QStringLiteral("HomeView"));
    const QStringList views = HomeDestinations::allViews();
    for (const QString &view : views)
        load(engine, view);
    // Pages the dashboard opens over itself.
    load(engine, QStringLiteral("HistoryView"));
    qInstallMessageHandler(previousHandler);
    return problems == 0 ? 0 : 1;
}
