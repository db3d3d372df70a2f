// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AppOptions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

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
    parser.addOptions({ screenshot, selfTest, reportFirstFrame });
    parser.process(app);

    AppOptions options;
    options.screenshotPath = parser.value(screenshot);
    options.selfTest = parser.isSet(selfTest);
    options.reportFirstFrame = parser.isSet(reportFirstFrame);
    return options;
}
