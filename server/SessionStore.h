// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <ctime>
#include <functional>
#include <optional>
#include <string>

class Database;
class Query;

// The sessions a login opens. The app keeps the token it is given and sends it
// back as its "userid"; only the token's hash is stored, so a copy of the
// database holds no token that works. An account may have several sessions.
// A session ends at logout or once it has gone unused for `lifetime`.
class SessionStore
{
public:
    using Clock = std::function<std::time_t()>;
    static constexpr std::time_t lifetime = 90 * 24 * 3600;
    // How stale the stored "last used" time may get: a use refreshes it only
    // when it is older than this, so that most reads write nothing.
    static constexpr std::time_t usePrecision = 24 * 3600;

    explicit SessionStore(
        Database &db, Clock clock = [] { return std::time(nullptr); });

    // A fresh token for the user: 128 random bits as lowercase hex.
    std::string open(std::int64_t userId);
    // The user whose live session the token names.
    std::optional<std::int64_t> userFor(const std::string &token);
    void close(const std::string &token);

private:
    Database &m_db;
    Clock m_clock;
};

// The user whose session token the request carries under key; BadInput, with
// a message for the person, when there is no live session for it.
std::int64_t signedInUser(SessionStore &sessions, const Query &query, const char *key);
