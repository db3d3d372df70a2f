// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>

// What one client may cost a listener. Every connection holds a worker for as
// long as it is open, so these bound how long a slow, silent or idle client
// keeps one from everybody else.
struct ConnectionLimits {
    // From accept, and again from the end of each answer, to a complete
    // request: TLS handshake, headers and any idle time on a kept-alive
    // connection all count. Also the longest wait for a client to take more
    // of an answer.
    std::chrono::milliseconds requestTimeout { std::chrono::seconds(5) };
    // Connections served at once; more wait for a free worker. Idle workers
    // only sleep, so this is set well above what slow or idle clients are
    // likely to hold at the same time.
    std::size_t workers = 128;
    // Answers on one connection before it closes, above what a client
    // pipelines at once so that none of those is lost.
    std::size_t requestsPerConnection = 100;
};
