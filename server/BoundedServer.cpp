// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/BoundedServer.h"

#include "server/Console.h"

#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <sys/eventfd.h>
#include <unistd.h>

StopSignal::StopSignal()
    : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    if (m_descriptor < 0)
        throw std::runtime_error("cannot make the listeners' stop signal");
}

StopSignal::~StopSignal()
{
    ::close(m_descriptor);
}

void StopSignal::raise()
{
    const std::uint64_t one = 1;
    // Nobody ever reads it, so it stays readable; a second raise changes nothing.
    [[maybe_unused]] const ssize_t written = ::write(m_descriptor, &one, sizeof one);
}

void serveConnection(ConnectionStream &connection, const ConnectionLimits &limits, const ProcessRequest &process)
{
    bool open = connection.handshake();
    for (size_t left = limits.requestsPerConnection; open && left > 0 && connection.awaitRequest(); --left) {
        bool closed = false;
        // A request cut off by its deadline has had httplib's "400" at most;
        // what the client sends after it is no request of its own.
        open = process(connection, left == 1, closed) && !closed && !connection.outOfTime();
        if (open)
            connection.startNextRequest();
    }
    if (connection.cutOff()) {
        std::string ip;
        int port = 0;
        connection.get_remote_ip_and_port(ip, port);
        char seconds[32];
        std::snprintf(seconds, sizeof seconds, "%g", std::chrono::duration<double>(limits.requestTimeout).count());
        Console::printLine("Closed the connection from " + ip + ":" + std::to_string(port) + ": no complete request within " + seconds + " s");
    }
}
