// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/FirstFrameClock.h"

#include <QCoreApplication>
#include <QQuickWindow>

#include <chrono>
#include <cstdio>

void FirstFrameClock::reportAndQuit(QQuickWindow *window)
{
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window,
        [] {
            const auto now = std::chrono::system_clock::now().time_since_epoch();
            std::fprintf(stderr, "first-frame-ns %lld\n", static_cast<long long>(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
            QCoreApplication::exit(0);
        },
        Qt::DirectConnection);
}
