// SPDX-License-Identifier: GPL-3.0-or-later
// How fast the history screen opens once the week's answer is in: a model
// already holding 169 hourly entries is handed to a new HistoryView on a
// phone-sized window, and the time runs from the start of its creation to the
// last frame drawn before the window goes quiet, the frame that shows the
// finished chart. The first run pays for compiling the screen and loading the
// Qt Charts plugin, as the app's first opening does; it is reported apart from
// the median of the 21 runs after it. Headless, software-rendered, no position.
// The view also builds the model it would use on its own (its property's
// default), so the figures include that model's construction.
// Usage: history_view [picture.png]   (saves the last run's window there)
#include "airquality/HistoryViewModel.h"
#include "shell/QmlTypes.h"
#include "shell/RootController.h"
#include "shell/WindowGrab.h"

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFont>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace
{
constexpr int measuredRuns = 21;
constexpr int weekOfHours = 169;
// No new frame for this long means the screen is finished.
constexpr int quietMilliseconds = 300;

QVector<AQIEntry> weekUpToNow()
{
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    QVector<AQIEntry> entries;
    for (int hour = weekOfHours - 1; hour >= 0; --hour) {
        AQIEntry entry;
        entry.dt = static_cast<double>(now - hour * 3600);
        entry.main.aqi = 1 + (hour * 7 / 5) % 5;
        entries.append(entry);
    }
    return entries;
}

// Milliseconds from the start of the view's creation to its last frame.
double openOnce(QQuickWindow &window, QQmlEngine &engine, std::unique_ptr<QObject> &view)
{
    auto model = std::make_unique<HistoryViewModel>();
    model->showEntries(weekUpToNow());
    view.reset();

    QElapsedTimer clock;
    double lastFrame = 0;
    QEventLoop loop;
    QTimer quiet;
    quiet.setSingleShot(true);
    quiet.setInterval(quietMilliseconds);
    QObject::connect(&quiet, &QTimer::timeout, &loop, &QEventLoop::quit);
    const auto connection = QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, [&] {
        lastFrame = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        quiet.start();
    });

    clock.start();
    // Made here, as the app's Loader does: the engine keeps what it compiled.
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/qml/HistoryView.qml")));
    view.reset(component.createWithInitialProperties({ { QStringLiteral("model"), QVariant::fromValue(model.get()) } }));
    auto *item = qobject_cast<QQuickItem *>(view.get());
    if (!item) {
        std::fprintf(stderr, "HistoryView could not be built: %s\n", qPrintable(component.errorString()));
        std::exit(1);
    }
    model.release()->setParent(item);
    item->setSize(window.size());
    item->setParentItem(window.contentItem());
    quiet.start();
    loop.exec();
    QObject::disconnect(connection);
    return lastFrame;
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("TARNELO_POSITION", "none");
    QApplication app(argc, argv);
    QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
    RootController rootController;
    QQmlEngine engine;
    QmlTypes::registerAll(engine, &rootController);

    QQuickWindow window;
    window.resize(390, 772);
    window.show();
    std::unique_ptr<QObject> view;

    const double first = openOnce(window, engine, view);
    std::vector<double> times;
    for (int run = 0; run < measuredRuns; ++run)
        times.push_back(openOnce(window, engine, view));
    std::sort(times.begin(), times.end());
    std::printf("history screen, %d entries: first opening %.1f ms; then median %.1f ms, fastest %.1f ms, slowest %.1f ms (%d runs)\n", weekOfHours, first,
                times[times.size() / 2], times.front(), times.back(), measuredRuns);
    std::fflush(stdout);

    if (argc > 1 && !WindowGrab::grab(&window).save(QString::fromLocal8Bit(argv[1]), "PNG"))
        return 1;
    return 0;
}
