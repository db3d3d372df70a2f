// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AppOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

AppOptions AppOptions::parse(const QCoreApplication &app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("How clean is the air where you are, and what to do about it."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"), QStringLiteral("Save the window to <file> once it is drawn, then quit."),
                                        QStringLiteral("file"));
    const QCommandLineOption selfTest(QStringLiteral("self-test"), QStringLiteral("Build every screen once and quit; fails on any QML problem."));
    const QCommandLineOption reportFirstFrame(QStringLiteral("report-first-frame"),
                                              QStringLiteral("Print the wall-clock time of the first frame in nanoseconds and quit."));
    const QCommandLineOption openHistory(QStringLiteral("open-history"),
                                         QStringLiteral("Open the past week's air over the dashboard at start, e.g. for a screenshot of it."));
    const QCommandLineOption mapView(QStringLiteral("map-view"),
                                     QStringLiteral("Open the map over the dashboard at start, centred and zoomed as given, e.g. for a screenshot of it."),
                                     QStringLiteral("latitude,longitude,zoom"));
    const QCommandLineOption open(QStringLiteral("open"), QStringLiteral("Show this tab or side-menu item first, e.g. \"AQI Scale\", for a screenshot of it."),
                                  QStringLiteral("destination"));
    const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("Open the window at this size, e.g. 360x720."), QStringLiteral("widthxheight"));
    const QCommandLineOption search(QStringLiteral("search"), QStringLiteral("Open the map over the dashboard and look this place up at once."),
                                    QStringLiteral("place"));
    parser.addOptions({ screenshot, selfTest, reportFirstFrame, open, openHistory, mapView, search, size });
    parser.process(app);

    AppOptions options;
    options.screenshotPath = parser.value(screenshot);
    options.selfTest = parser.isSet(selfTest);
    options.reportFirstFrame = parser.isSet(reportFirstFrame);
    options.destination = parser.value(open);
    if (parser.isSet(size)) {
        const QStringList sides = parser.value(size).split(QLatin1Char('x'));
        options.windowSize = sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
        if (!options.windowSize.isValid() || options.windowSize.isEmpty()) {
            std::fprintf(stderr, "--size takes widthxheight, e.g. 360x720\n");
            std::exit(EXIT_FAILURE);
        }
    }
    options.openHistory = parser.isSet(openHistory);
    options.search = parser.value(search);
    if (parser.isSet(mapView)) {
        options.mapView = MapCamera::fromText(parser.value(mapView));
        if (!options.mapView) {
            std::fprintf(stderr, "--map-view takes latitude,longitude,zoom, e.g. -1.29,36.82,6\n");
            std::exit(EXIT_FAILURE);
        }
    }
    return options;
}
