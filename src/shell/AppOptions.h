// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/MapCamera.h"

#include <QSize>
#include <QString>

#include <optional>

class QCoreApplication;

// What the command line asks of this run of the app.
struct AppOptions {
    QString screenshotPath; // save the window there once it has settled, then quit
    bool selfTest = false; // build every screen once and quit
    bool reportFirstFrame = false; // print the wall-clock time of the first frame and quit
    QString destination; // a tab or side-menu item to show first ("AQI Scale")
    QSize windowSize; // the window's size when valid, e.g. a phone's 360 x 720
    bool openHistory = false; // open the past week's history over the dashboard
    std::optional<MapCamera> mapView; // open the map there over the dashboard
    QString search; // open the map over the dashboard and look this place up

    static AppOptions parse(const QCoreApplication &app);
};
