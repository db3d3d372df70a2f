// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QCoreApplication;

// What the command line asks of this run of the app.
struct AppOptions {
    QString screenshotPath; // save the window there once it has settled, then quit
    bool selfTest = false; // build every screen once and quit
    bool reportFirstFrame = false; // print the wall-clock time of the first frame and quit

    static AppOptions parse(const QCoreApplication &app);
};
