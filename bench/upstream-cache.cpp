// SPDX-License-Identifier: GPL-3.0-or-later
// What the backend's upstream cache saves: the time of "airquality.php" when
// the backend must first ask the upstream (a new 0.01° cell each time) and
// when it answers from its cache (the same cell again), 50 requests each, with
// the tests' Open-Meteo stand-in on loopback as the upstream. Reports the
// median, 5th and 95th percentile of each, in milliseconds, beside the same
// requests to a backend that only simulates, as the floor. One kept-alive
// connection each, so that no TLS handshake is in the figures.
// Usage: upstream_cache
#include "../tests/server/OpenMeteoStandIn.h"
#include "common/DevServerProcess.h"

#include <QCoreApplication>

#include <httplib.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace
{
std::unique_ptr<httplib::SSLClient> clientOf(const DevServerProcess &server)
{
    auto client = std::make_unique<httplib::SSLClient>("127.0.0.1", server.httpsPort());
    client->set_ca_cert_path(server.caFile().toStdString());
    client->enable_server_certificate_verification(true);
    client->set_keep_alive(true);
    return client;
}

double millisecondsFor(httplib::SSLClient &client, const std::string &lat)
{
    const auto start = std::chrono::steady_clock::now();
    client.Get("/tarnelo/v1/airquality.php?lat=" + lat + "&lon=13.40");
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void report(const char *what, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    const auto at = [&times](double share) { return times[static_cast<size_t>(share * static_cast<double>(times.size() - 1))]; };
    std::printf("%-9s n=%zu  p5 %.2f ms  median %.2f ms  p95 %.2f ms\n", what, times.size(), at(0.05), at(0.5), at(0.95));
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    OpenMeteoStandIn upstream;
    DevServerProcess server(QString(), upstream.backendOptions());
    if (!server.isReady())
        return 1;
    const std::unique_ptr<httplib::SSLClient> client = clientOf(server);
    millisecondsFor(*client, "50.00"); // the connection and the first cell

    std::vector<double> uncached, cached;
    for (int i = 1; i <= 50; ++i)
        uncached.push_back(millisecondsFor(*client, "50." + std::to_string(10 + i)));
    for (int i = 0; i < 50; ++i)
        cached.push_back(millisecondsFor(*client, "50.00"));
    report("uncached", uncached);
    report("cached", cached);
    std::printf("upstream calls: %d\n", upstream.calls());

    DevServerProcess simulating;
    if (!simulating.isReady())
        return 1;
    const std::unique_ptr<httplib::SSLClient> simulatingClient = clientOf(simulating);
    std::vector<double> simulated;
    for (int i = 0; i <= 50; ++i)
        simulated.push_back(millisecondsFor(*simulatingClient, "50." + std::to_string(10 + i)));
    simulated.erase(simulated.begin()); // the connection
    report("simulated", simulated);
    return 0;
}
