// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/BoundedServer.h"
#include "server/ConnectionLimits.h"

#include <httplib.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

struct TlsFiles;
class ScriptRouter;
class HistoryService;

// The two servers: HTTPS for the app's scripts under /tarnelo/v1/, plain HTTP
// for the history stand-in. Both log every request on the console and answer
// JSON even for paths nobody serves. Each bounds what one client may cost it
// by the same limits.
class Listeners
{
public:
    Listeners(const TlsFiles &tls, const ScriptRouter &scripts, const HistoryService &history, const ConnectionLimits &limits = {});

    // Binds both to host (port 0: any free port); throws std::runtime_error on failure.
    void bind(const std::string &host, int httpsPort, int httpPort);
    int httpsPort() const { return m_httpsPort; }
    int httpPort() const { return m_httpPort; }

    // Serves on threads of its own; stopped() runs on such a thread when a
    // listener ends, whether by stop() or by failing.
    void start(std::function<void()> stopped);
    // True once both accept connections; false if that takes over five seconds.
    bool waitUntilServing() const;
    void stop();
    ~Listeners();

private:
    BoundedServer<httplib::SSLServer> m_https;
    BoundedServer<httplib::Server> m_http;
    std::vector<std::thread> m_threads;
    std::atomic<size_t> m_finished { 0 };
    int m_httpsPort = -1;
    int m_httpPort = -1;
};
