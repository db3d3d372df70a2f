// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/ConnectionStream.h"

#include <openssl/err.h>
#include <openssl/ssl.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
bool wouldBlock(int error)
{
    return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

int clampToInt(size_t size)
{
    return static_cast<int>(std::min<size_t>(size, INT_MAX));
}

// The numeric address and port that getpeername or getsockname gives.
void describeEndpoint(int (*name)(int, sockaddr *, socklen_t *), int socket, std::string &ip, int &port)
{
    sockaddr_storage address {};
    socklen_t length = sizeof address;
    char host[NI_MAXHOST];
    char service[NI_MAXSERV];
    if (name(socket, reinterpret_cast<sockaddr *>(&address), &length) == 0
        && getnameinfo(reinterpret_cast<sockaddr *>(&address), length, host, sizeof host, service, sizeof service, NI_NUMERICHOST | NI_NUMERICSERV) == 0) {
        ip = host;
        port = std::atoi(service);
    }
}
} // namespace

ConnectionStream::ConnectionStream(int socket, SSL_CTX *tls, std::chrono::milliseconds requestTimeout, int stopping)
    : m_socket(socket)
    , m_requestTimeout(requestTimeout)
    , m_stopping(stopping)
    , m_deadline(Clock::now() + requestTimeout)
{
    fcntl(m_socket, F_SETFL, fcntl(m_socket, F_GETFL) | O_NONBLOCK);
    if (tls != nullptr) {
        m_ssl = SSL_new(tls);
        m_tlsBroken = m_ssl == nullptr || SSL_set_fd(m_ssl, m_socket) != 1;
    }
}

ConnectionStream::~ConnectionStream()
{
    if (m_ssl != nullptr) {
        // One attempt at close_notify, never a wait for the client's; after a
        // fatal TLS error OpenSSL forbids it.
        if (!m_tlsBroken && SSL_is_init_finished(m_ssl)) {
            ERR_clear_error();
            SSL_shutdown(m_ssl);
        }
        SSL_free(m_ssl);
    }
    ::shutdown(m_socket, SHUT_RDWR);
    ::close(m_socket);
}

bool ConnectionStream::handshake()
{
    if (m_ssl == nullptr)
        return !m_tlsBroken;
    while (!m_tlsBroken) {
        ERR_clear_error();
        const int result = SSL_accept(m_ssl);
        if (result == 1)
            return true;
        const short events = tlsWait(result);
        if (events == 0 || !waitUntil(events, m_deadline))
            return false;
    }
    return false;
}

bool ConnectionStream::awaitRequest()
{
    return m_begin < m_end || fill();
}

void ConnectionStream::startNextRequest()
{
    m_deadline = Clock::now() + m_requestTimeout;
    m_firstRequest = false;
    m_requestBegun = m_begin < m_end;
}

bool ConnectionStream::is_readable() const
{
    return m_begin < m_end || (m_ssl != nullptr && SSL_pending(m_ssl) > 0) || waitUntil(POLLIN, m_deadline);
}

bool ConnectionStream::is_writable() const
{
    return waitUntil(POLLOUT, Clock::now() + m_requestTimeout);
}

ssize_t ConnectionStream::read(char *ptr, size_t size)
{
    if (m_begin == m_end && !fill())
        return -1;
    const size_t count = std::min(size, m_end - m_begin);
    std::memcpy(ptr, m_buffer.data() + m_begin, count);
    m_begin += count;
    return static_cast<ssize_t>(count);
}

ssize_t ConnectionStream::write(const char *ptr, size_t size)
{
    for (;;) {
        const Transfer sent = send(ptr, size);
        if (sent.bytes > 0)
            return static_cast<ssize_t>(sent.bytes);
        if (sent.waitFor == 0 || !waitUntil(sent.waitFor, Clock::now() + m_requestTimeout))
            return -1;
    }
}

void ConnectionStream::get_remote_ip_and_port(std::string &ip, int &port) const
{
    describeEndpoint(::getpeername, m_socket, ip, port);
}

void ConnectionStream::get_local_ip_and_port(std::string &ip, int &port) const
{
    describeEndpoint(::getsockname, m_socket, ip, port);
}

bool ConnectionStream::fill()
{
    for (;;) {
        const Transfer received = receive(m_buffer.data(), m_buffer.size());
        if (received.bytes > 0) {
            m_begin = 0;
            m_end = received.bytes;
            m_requestBegun = true;
            return true;
        }
        if (received.waitFor == 0 || !waitUntil(received.waitFor, m_deadline))
            return false;
    }
}

ConnectionStream::Transfer ConnectionStream::receive(char *data, size_t size)
{
    if (m_ssl == nullptr) {
        const ssize_t count = ::recv(m_socket, data, size, 0);
        if (count > 0)
            return { static_cast<size_t>(count), 0 };
        return { 0, static_cast<short>(count < 0 && wouldBlock(errno) ? POLLIN : 0) };
    }
    if (m_tlsBroken)
        return {};
    ERR_clear_error();
    const int count = SSL_read(m_ssl, data, clampToInt(size));
    return count > 0 ? Transfer { static_cast<size_t>(count), 0 } : Transfer { 0, tlsWait(count) };
}

ConnectionStream::Transfer ConnectionStream::send(const char *data, size_t size)
{
    if (m_ssl == nullptr) {
        // MSG_NOSIGNAL: a client that has gone must not raise SIGPIPE.
        const ssize_t count = ::send(m_socket, data, size, MSG_NOSIGNAL);
        if (count > 0)
            return { static_cast<size_t>(count), 0 };
        return { 0, static_cast<short>(count < 0 && wouldBlock(errno) ? POLLOUT : 0) };
    }
    if (m_tlsBroken)
        return {};
    ERR_clear_error();
    // After a want-read or want-write, OpenSSL expects the very same write again, as the caller's loop makes it.
    const int count = SSL_write(m_ssl, data, clampToInt(size));
    return count > 0 ? Transfer { static_cast<size_t>(count), 0 } : Transfer { 0, tlsWait(count) };
}

short ConnectionStream::tlsWait(int result)
{
    switch (SSL_get_error(m_ssl, result)) {
    case SSL_ERROR_WANT_READ:
        return POLLIN;
    case SSL_ERROR_WANT_WRITE:
        return POLLOUT;
    case SSL_ERROR_ZERO_RETURN: // the client's close_notify: ours may still go out
        return 0;
    default:
        m_tlsBroken = true;
        return 0;
    }
}

bool ConnectionStream::waitUntil(short events, Clock::time_point deadline) const
{
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (left <= 0) {
            m_outOfTime = true;
            return false;
        }
        pollfd watched[] = { { m_socket, events, 0 }, { m_stopping, POLLIN, 0 } };
        const int ready = ::poll(watched, 2, static_cast<int>(std::min<long long>(left, INT_MAX)));
        if (ready < 0 && errno != EINTR)
            return false;
        if (watched[1].revents != 0)
            return false;
        if (watched[0].revents != 0)
            return true;
    }
}
