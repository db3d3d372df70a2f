// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Listeners.h"

#include "server/Console.h"
#include "server/HistoryService.h"
#include "server/RequestLog.h"
#include "server/ScriptRouter.h"
#include "server/TlsCertificate.h"

#include <chrono>
#include <stdexcept>

namespace
{
void configure(httplib::Server &server)
{
    // Small answers must leave at once, not wait for the client's delayed ACK (Nagle).
    server.set_tcp_nodelay(true);
    server.set_logger([](const httplib::Request &request, const httplib::Response &response) { Console::printLine(requestLogLine(request, response)); });
}

// Errors that no handler answered (unknown paths, malformed requests) get the
// JSON body the clients expect; answers a handler already wrote stay as they are.
httplib::Server::HandlerWithResponse answerEmptyErrors(httplib::Server::Handler answer)
{
    return [answer](const httplib::Request &request, httplib::Response &response) {
        if (!response.body.empty())
            return httplib::Server::HandlerResponse::Unhandled;
        answer(request, response);
        return httplib::Server::HandlerResponse::Handled;
    };
}

int requireBound(int bound, const std::string &host, int port, const char *name)
{
    if (bound <= 0)
        throw std::runtime_error(std::string("cannot listen for ") + name + " on " + host + " port " + std::to_string(port));
    return bound;
}
} // namespace

Listeners::Listeners(const TlsFiles &tls, const ScriptRouter &scripts, const HistoryService &history, const ConnectionLimits &limits)
    : m_https(limits, tls.certificate.c_str(), tls.privateKey.c_str())
    , m_http(limits)
{
    if (!m_https.is_valid())
        throw std::runtime_error("cannot load the TLS certificate " + tls.certificate);

    m_https.Get(R"(/tarnelo/v1/([^/]+))",
                [&scripts](const httplib::Request &request, httplib::Response &response) { scripts.serve(request.matches[1], request, response); });
    m_https.set_error_handler(answerEmptyErrors(
        [](const httplib::Request &request, httplib::Response &response) { ScriptRouter::refuse(response, "Nothing is served at " + request.path); }));

    m_http.Get("/data/2.5/air_pollution/history",
               [&history](const httplib::Request &request, httplib::Response &response) { history.answer(request, response); });
    m_http.set_error_handler(answerEmptyErrors([](const httplib::Request &request, httplib::Response &response) {
        HistoryService::refuse(response, response.status, "Nothing is served at " + request.path);
    }));

    configure(m_https);
    configure(m_http);
}

void Listeners::bind(const std::string &host, int httpsPort, int httpPort)
{
    m_httpsPort = requireBound(m_https.bindTo(host, httpsPort), host, httpsPort, "HTTPS");
    m_httpPort = requireBound(m_http.bindTo(host, httpPort), host, httpPort, "HTTP");
}

void Listeners::start(std::function<void()> stopped)
{
    for (httplib::Server *server : std::initializer_list<httplib::Server *> { &m_https, &m_http })
        m_threads.emplace_back([this, server, stopped] {
            server->listen_after_bind();
            ++m_finished;
            stopped();
        });
}

bool Listeners::waitUntilServing() const
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (!m_https.is_running() || !m_http.is_running()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

void Listeners::stop()
{
    // A server's stop() does nothing before it runs, so a stop that comes
    // early would be lost: repeat it until both have really ended.
    while (m_finished < m_threads.size()) {
        m_https.shutDown();
        m_http.shutDown();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    for (std::thread &thread : m_threads)
        thread.join();
    m_threads.clear();
    m_finished = 0;
}

Listeners::~Listeners()
{
    stop();
}
