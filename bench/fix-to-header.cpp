// SPDX-License-Identifier: GPL-3.0-or-later
// From a position fix to the dashboard header's fields: the time from handing
// the header a position to its readings being set from the backend's answer,
// over 50 fixes with the development backend on loopback. Prints the median
// and the 95th percentile in milliseconds, and apart from them the first fix,
// which also pays for the connection and the TLS handshake.
// Usage: fix_to_header [fixes]
#include "airquality/MainHeaderViewModel.h"
#include "common/DevServerProcess.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QSignalSpy>

#include <algorithm>
#include <cstdio>
#include <vector>

int main(int argc, char **argv)
{
    qputenv("TARNELO_POSITION", "none");
    QGuiApplication app(argc, argv);
    const int fixes = argc > 1 ? std::max(1, std::atoi(argv[1])) : 50;
    DevServerProcess server;
    if (!server.isReady())
        return 1;
    qputenv("TARNELO_BACKEND_URL", server.backendUrl().toString().toUtf8());
    qputenv("TARNELO_CA_FILE", server.caFile().toUtf8());

    MainHeaderViewModel header;
    QSignalSpy filled(&header, &MainHeaderViewModel::readingsChanged);
    std::vector<double> times;
    double first = 0;
    // One more than asked: the first pays for the connection and TLS handshake.
    for (int i = 0; i <= fixes; ++i) {
        QElapsedTimer clock;
        clock.start();
        header.showPosition(-1.2864 + i * 0.001, 36.8172);
        if (!filled.wait(10000))
            return 1;
        const double ms = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        if (i > 0)
            times.push_back(ms);
        else
            first = ms;
    }
    std::sort(times.begin(), times.end());
    const auto at = [&times](double share) { return times[static_cast<size_t>(share * static_cast<double>(times.size() - 1))]; };
    std::printf("fix-to-header-ms median %.2f p95 %.2f n %zu first %.2f\n", at(0.5), at(0.95), times.size(), first);
    return 0;
}
