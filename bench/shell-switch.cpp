// SPDX-License-Identifier: GPL-3.0-or-later
// The home shell as a person taps it, signed in, on a phone-sized window:
// - a tab switch, timed from the tap to the first frame that shows the new
//   destination, every tab in turn for a number of rounds;
// - the side menu, counted in frames from the tap on its button to the first
//   frame in which it has moved, and the time to it, the first time (when it
//   is built) and after.
// Prints "tab-switch-ms median M p95 P slowest-tab T n N" and
// "side-menu-moving first F frames T ms later F frames T ms". Run by
// startup.py, in its environment.
// Usage: shell_switch [rounds]
#include "common/ScreenWindow.h"
#include "common/SignedInUser.h"
#include "shell/QmlTypes.h"
#include "shell/RootController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <vector>

namespace
{
double at(std::vector<double> times, double share)
{
    std::sort(times.begin(), times.end());
    return times[static_cast<size_t>(share * static_cast<double>(times.size() - 1))];
}

void tap(QQuickWindow &window, QQuickItem *item)
{
    QTest::mouseClick(&window, Qt::LeftButton, {}, item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
}

int fail(const QString &why)
{
    std::fprintf(stderr, "shell_switch: %s\n", qPrintable(why));
    return 1;
}

struct Reaction {
    int frames = 0; // 0: never
    double ms = 0;
};

// Taps `item`, then counts the frames swapped until `done` holds as one of them
// is swapped, and the time to that frame. Frames are watched from before the
// tap, as the tap may already draw one.
template<typename Done> Reaction reactionTo(QQuickWindow &window, QQuickItem *item, Done done)
{
    Reaction reaction;
    int frames = 0;
    QElapsedTimer clock;
    const QMetaObject::Connection watch = QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [&] {
        ++frames;
        if (!reaction.frames && done()) {
            reaction.frames = frames;
            reaction.ms = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        }
    });
    clock.start();
    tap(window, item);
    (void)QTest::qWaitFor([&] { return reaction.frames || frames > 60; }, 2000);
    QObject::disconnect(watch);
    return reaction;
}
} // namespace

int main(int argc, char **argv)
{
    // Widgets: the history page draws its chart with the graphics view.
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tarnelo"));
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 20;
    storeAmina();
    RootController rootController;
    QQmlEngine engine;
    QmlTypes::registerAll(engine, &rootController);
    QQuickWindow window;
    const std::unique_ptr<QQuickItem> home = showScreen(engine, window, QStringLiteral("HomeView"), QSize(390, 844));
    if (!home)
        return 1;
    auto *destination = findItem(home.get(), QStringLiteral("destination"));
    auto *menu = findItem(home.get(), QStringLiteral("sideMenu"));
    auto *menuButton = findItem(home.get(), QStringLiteral("menuButton"));
    if (!destination || !menu || !menuButton)
        return fail(QStringLiteral("the home shell has no destination, side menu or menu button"));
    const int tabs = home->property("model").value<QObject *>()->property("bottomTabNames").toStringList().size();

    std::vector<double> switches;
    std::map<int, std::vector<double>> byTab;
    for (int round = 0; round < rounds; ++round) {
        for (int step = 1; step <= tabs; ++step) {
            const int index = step % tabs;
            QQuickItem *tab = findItem(home.get(), QStringLiteral("tab%1").arg(index));
            if (!tab)
                return fail(QStringLiteral("no tab ") + QString::number(index));
            const QUrl before = destination->property("source").toUrl();
            const Reaction shown = reactionTo(window, tab, [destination, before] { return destination->property("source").toUrl() != before; });
            if (!shown.frames)
                return fail(QStringLiteral("no frame showing tab ") + QString::number(index));
            const double ms = shown.ms;
            switches.push_back(ms);
            byTab[index].push_back(ms);
        }
    }
    double slowestTab = 0;
    for (const auto &tab : byTab)
        slowestTab = std::max(slowestTab, at(tab.second, 0.5));

    const auto menuMoved = [menu] { return menu->isVisible() && menu->x() > -menu->width() - 6; };
    Reaction opened[2];
    for (Reaction &opening : opened) {
        opening = reactionTo(window, menuButton, menuMoved);
        if (!reactionTo(window, menuButton, [menu] { return !menu->isVisible(); }).frames)
            return fail(QStringLiteral("the side menu did not close"));
    }
    std::printf("tab-switch-ms median %.2f p95 %.2f slowest-tab %.2f n %zu\n", at(switches, 0.5), at(switches, 0.95), slowestTab, switches.size());
    std::printf("side-menu-moving first %d frames %.2f ms later %d frames %.2f ms\n", opened[0].frames, opened[0].ms, opened[1].frames, opened[1].ms);
    return 0;
}
