// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/DesktopNotifier.h"
#include "common/AfterFirstFrame.h"
#include "location/SearchLocationViewModel.h"
#include "shell/AppOptions.h"
#include "shell/FirstFrameClock.h"
#include "shell/HomeViewModel.h"
#include "shell/QmlTypes.h"
#include "shell/ReturnPressesButtons.h"
#include "shell/RootController.h"
#include "shell/ScreenshotWriter.h"
#include "shell/SelfTest.h"

#include <QApplication>
#include <QFont>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTimer>

#include <chrono>
#include <memory>

namespace
{
// Without any display the app still runs: drawn off screen by the software
// renderer, which is what the screenshot and self-test runs rely on.
void chooseHeadlessWhenNoDisplay()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_BACKEND", "software");
    }
}

// What waits for the first frame starts on the GUI thread just after it, or
// after a while without one: a window started minimised may not draw at all.
void releaseAfterFirstFrame(QQuickWindow *window)
{
    QTimer::singleShot(std::chrono::seconds(2), window, [] { AfterFirstFrame::release(); });
    const auto once = std::make_shared<QMetaObject::Connection>();
    *once = QObject::connect(
        window, &QQuickWindow::frameSwapped, window,
        [once] {
            // Later frames may have queued their call before this one ran.
            if (QObject::disconnect(*once))
                AfterFirstFrame::release();
        },
        Qt::QueuedConnection);
}
} // namespace

int main(int argc, char *argv[])
{
    chooseHeadlessWhenNoDisplay();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    // Widgets, not only Gui: Qt Charts draws its QML ChartView with the
    // graphics view, which needs a QApplication.
    QApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("tarnelo"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tarnelo"));
    QGuiApplication::setApplicationVersion(QStringLiteral(TARNELO_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tarnelo.Tarnelo"));
    QGuiApplication::setFont(QFont(QStringLiteral("Inter")));
    const AppOptions options = AppOptions::parse(app);
    app.installEventFilter(new ReturnPressesButtons(&app));

    RootController rootController;
    if (!options.destination.isEmpty())
        HomeViewModel::openAtStart(options.destination);
    if (options.openHistory)
        rootController.openPageAtStart(QStringLiteral("HistoryView"));
    if (options.mapView) {
        rootController.openPageAtStart(QStringLiteral("SearchLocationView"));
        SearchLocationViewModel::openNextAt(*options.mapView);
    }
    if (!options.search.isEmpty()) {
        rootController.openPageAtStart(QStringLiteral("SearchLocationView"));
        SearchLocationViewModel::searchNextFor(options.search);
    }
    QQmlApplicationEngine engine;
    QmlTypes::registerAll(engine, &rootController);

    if (options.selfTest)
        return SelfTest::run(engine);

    AfterFirstFrame::hold();
    engine.load(QUrl(QStringLiteral("qrc:/qml/TarneloApp.qml")));
    auto *window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    if (!window)
        return 1;
    releaseAfterFirstFrame(window);
    if (options.windowSize.isValid())
        window->resize(options.windowSize);
    // Activating an air alert brings the dashboard to the front.
    DesktopNotifier::setActivationHandler([window, &rootController] {
        rootController.showHome();
        window->show();
        window->raise();
        window->requestActivate();
    });

    if (options.reportFirstFrame)
        FirstFrameClock::reportAndQuit(window);
    else if (!options.screenshotPath.isEmpty())
        new ScreenshotWriter(window, options.screenshotPath, &app);

    return QGuiApplication::exec();
}
