// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/ConnectionLimits.h"
#include "server/ConnectionStream.h"

#include <httplib.h>

#include <chrono>
#include <functional>
#include <string>
#include <sys/socket.h>
#include <type_traits>
#include <utility>

// A descriptor that turns readable, for good, once signalled: every
// connection's waits watch it, so that a stop ends them all at once.
class StopSignal
{
public:
    StopSignal();
    ~StopSignal();
    StopSignal(const StopSignal &) = delete;
    StopSignal &operator=(const StopSignal &) = delete;
    void raise();
    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

// httplib's process_request for one request on the connection.
using ProcessRequest = std::function<bool(httplib::Stream &stream, bool closeConnection, bool &connectionClosed)>;

// Answers the connection's requests in order, pipelined ones included, until
// the client closes, runs out of time, the server stops or the connection
// has had its number of answers; says on the console when a client was cut off.
void serveConnection(ConnectionStream &connection, const ConnectionLimits &limits, const ProcessRequest &process);

// One of httplib's servers (Server, or SSLServer for HTTPS) that bounds what
// each client may cost it (see ConnectionLimits): httplib still parses,
// routes and answers every request, but each connection runs through a
// ConnectionStream on a pool of limits.workers threads instead of
// httplib's own loop.
template<typename Base> class BoundedServer final : public Base
{
public:
    template<typename... BaseArguments>
    explicit BoundedServer(const ConnectionLimits &limits, BaseArguments &&...arguments)
        : Base(std::forward<BaseArguments>(arguments)...)
        , m_limits(limits)
    {
        this->new_task_queue = [workers = limits.workers] { return new httplib::ThreadPool(workers); };
        // Only for the Keep-Alive header of the answers, which should tell the truth.
        this->set_keep_alive_max_count(limits.requestsPerConnection);
        this->set_keep_alive_timeout(std::chrono::duration_cast<std::chrono::seconds>(limits.requestTimeout).count());
    }

    // Binds to host (port 0: any free port); the port, or -1. httplib listens
    // with a backlog of 5, which makes a burst of new connections beyond that
    // wait out SYN retransmissions (a second and more): listening again with
    // the system's largest backlog only changes that.
    int bindTo(const std::string &host, int port)
    {
        const int bound = port == 0 ? this->bind_to_any_port(host) : (this->bind_to_port(host, port) ? port : -1);
        if (bound > 0)
            ::listen(this->svr_sock_, SOMAXCONN);
        return bound;
    }

    // httplib's stop() would leave open connections to run out their time
    // and the pool to wait for them; this ends them too.
    void shutDown()
    {
        m_stop.raise();
        Base::stop();
    }

private:
    // httplib's pool runs this for each accepted connection. It is private in
    // httplib, which still leaves it to subclasses to override.
    bool process_and_close_socket(socket_t socket) override
    {
        SSL_CTX *tls = nullptr;
        if constexpr (std::is_base_of_v<httplib::SSLServer, Base>)
            tls = this->ssl_context();
        ConnectionStream connection(socket, tls, m_limits.requestTimeout, m_stop.descriptor());
        serveConnection(connection, m_limits, [this](httplib::Stream &stream, bool closeConnection, bool &connectionClosed) {
            return this->process_request(stream, closeConnection, connectionClosed, nullptr);
        });
        return true;
    }

    ConnectionLimits m_limits;
    StopSignal m_stop;
};
