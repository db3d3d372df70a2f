// SPDX-License-Identifier: GPL-3.0-or-later
// How readable the weather panel is as drawn: the dashboard is laid out on a
// window tall enough to hold all of it, drawn headless by the software
// renderer, and the pixels behind the white text of the weather panel and of
// one of its reading tiles are read back from the picture. Prints the WCAG
// contrast ratio of white against each (4.5:1 is the minimum for text this
// size). No backend and no position: the readings show their placeholders.
// Usage: dashboard_contrast [picture.png]   (saves the whole dashboard there)
#include "common/ScreenWindow.h"
#include "shell/QmlTypes.h"
#include "shell/RootController.h"
#include "shell/WindowGrab.h"

#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>

namespace
{
double luminance(const QColor &colour)
{
    const auto linear = [](double channel) { return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrastWithWhite(const QColor &background)
{
    return 1.05 / (luminance(background) + 0.05);
}

void report(const char *what, const QColor &background)
{
    std::printf("%-28s %s  white on it %.2f:1\n", what, qPrintable(background.name()), contrastWithWhite(background));
    std::fflush(stdout);
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("TARNELO_POSITION", "none");
    QGuiApplication app(argc, argv);
    QGuiApplication::setFont(QFont(QStringLiteral("Inter")));

    RootController rootController;
    QQmlEngine engine;
    QmlTypes::registerAll(engine, &rootController);
    QQuickWindow window;
    const std::unique_ptr<QQuickItem> dashboard = showScreen(engine, window, QStringLiteral("MainView"), QSize(390, 1600));
    if (!dashboard)
        return 1;
    QTest::qWait(500);

    const QImage picture = WindowGrab::grab(&window);
    if (argc > 1)
        picture.save(QString::fromLocal8Bit(argv[1]), "PNG");
    QQuickItem *tile = findItem(dashboard.get(), QStringLiteral("weather_Temperature"));
    if (!tile) {
        std::fprintf(stderr, "the weather panel has no temperature tile\n");
        return 1;
    }
    // Inside the tile's left edge, and in the gap left of it, at mid height.
    const QPointF inside = tile->mapToScene(QPointF(4, tile->height() / 2));
    const QPointF outside = tile->mapToScene(QPointF(-4, tile->height() / 2));
    report("weather panel", picture.pixelColor(outside.toPoint()));
    report("weather reading tile", picture.pixelColor(inside.toPoint()));
    return 0;
}
