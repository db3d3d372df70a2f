// SPDX-License-Identifier: GPL-3.0-or-later
// The yardstick for the app's start-up: an empty Qt Quick window of the app's
// size, started and timed exactly as the app is.
#include "shell/FirstFrameClock.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <memory>

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication app(argc, argv);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick 2.15\nimport QtQuick.Window 2.15\nWindow { width: 390; height: 844; visible: true }", QUrl());
    const std::unique_ptr<QObject> root(component.create());
    auto *window = qobject_cast<QQuickWindow *>(root.get());
    if (!window)
        return 1;
    FirstFrameClock::reportAndQuit(window);
    return QGuiApplication::exec();
}
