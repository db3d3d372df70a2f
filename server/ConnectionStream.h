// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <httplib.h>

#include <array>
#include <chrono>

// One client connection, plain or TLS, as the stream httplib reads requests
// from and writes answers to, for all the requests of the connection.
//
// httplib's own streams cannot bound a slow client: their read time-out
// restarts with every byte, so a client trickling its headers (or its TLS
// handshake) holds a worker for ever. They also live for one request only,
// and what they had read past its end, pipelined requests, is lost with them.
// This stream reads against a deadline for the whole request and keeps its
// buffer for the next one. Its socket is non-blocking throughout, so that no
// read, TLS record included, can wait past the deadline.
class ConnectionStream final : public httplib::Stream
{
public:
    using Clock = std::chrono::steady_clock;

    // Takes the accepted socket over. tls: the server's context, or null for
    // plain HTTP. stopping: a descriptor that becomes readable when the
    // server stops, which ends every wait at once.
    ConnectionStream(int socket, SSL_CTX *tls, std::chrono::milliseconds requestTimeout, int stopping);
    ~ConnectionStream() override;
    ConnectionStream(const ConnectionStream &) = delete;
    ConnectionStream &operator=(const ConnectionStream &) = delete;

    // The TLS handshake, within the first request's time; nothing for plain HTTP.
    bool handshake();
    // True once the next request's first bytes are here (pipelined ones
    // already are); false when the client closed, ran out of time or the
    // server is stopping.
    bool awaitRequest();
    // Gives the next request the whole time again, from now.
    void startNextRequest();
    bool outOfTime() const { return m_outOfTime; }
    // Out of time in the middle of something: a handshake, a first request
    // or a begun one, rather than idle between requests as kept-alive
    // connections end.
    bool cutOff() const { return m_outOfTime && (m_firstRequest || m_requestBegun); }

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char *ptr, size_t size) override;
    ssize_t write(const char *ptr, size_t size) override;
    void get_remote_ip_and_port(std::string &ip, int &port) const override;
    void get_local_ip_and_port(std::string &ip, int &port) const override;
    socket_t socket() const override { return m_socket; }

private:
    // Bytes moved, or the poll events to wait for before trying again; neither
    // when the connection has ended.
    struct Transfer {
        size_t bytes = 0;
        short waitFor = 0;
    };
    Transfer receive(char *data, size_t size);
    Transfer send(const char *data, size_t size);
    short tlsWait(int result);
    bool fill();
    bool waitUntil(short events, Clock::time_point deadline) const;

    int m_socket;
    SSL *m_ssl = nullptr;
    bool m_tlsBroken = false;
    std::chrono::milliseconds m_requestTimeout;
    int m_stopping;
    Clock::time_point m_deadline;
    mutable bool m_outOfTime = false;
    bool m_firstRequest = true;
    bool m_requestBegun = false;
    std::array<char, 16 * 1024> m_buffer {};
    size_t m_begin = 0;
    size_t m_end = 0;
};
