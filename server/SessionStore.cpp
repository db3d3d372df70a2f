// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/SessionStore.h"

#include "server/Database.h"
#include "server/Query.h"

#include <sodium.h>

#include <array>

namespace
{
constexpr size_t tokenBytes = 16;

std::string hexText(const unsigned char *bytes, size_t size)
{
    std::string hex(size * 2 + 1, '\0');
    sodium_bin2hex(hex.data(), hex.size(), bytes, size);
    hex.pop_back();
    return hex;
}

// Tokens are random and long enough that an unkeyed hash cannot be reversed
// by guessing; no salt or slow hash is needed, unlike for passwords.
std::string tokenHash(const std::string &token)
{
    std::array<unsigned char, crypto_generichash_BYTES> hash;
    crypto_generichash(hash.data(), hash.size(), reinterpret_cast<const unsigned char *>(token.data()), token.size(), nullptr, 0);
    return hexText(hash.data(), hash.size());
}
} // namespace

SessionStore::SessionStore(Database &db, Clock clock)
    : m_db(db)
    , m_clock(std::move(clock))
{
}

std::string SessionStore::open(std::int64_t userId)
{
    std::array<unsigned char, tokenBytes> random;
    randombytes_buf(random.data(), random.size());
    const std::string token = hexText(random.data(), random.size());
    const std::time_t now = m_clock();
    Database::Session session(m_db);
    // Logins are rare next to reads: a good moment to forget abandoned sessions.
    session.prepare("DELETE FROM sessions WHERE last_used <= ?1").bindAll(std::int64_t(now - lifetime)).run();
    session.prepare("INSERT INTO sessions (token_hash, user_id, last_used) VALUES (?1, ?2, ?3)").bindAll(tokenHash(token), userId, std::int64_t(now)).run();
    return token;
}

std::optional<std::int64_t> SessionStore::userFor(const std::string &token)
{
    const std::string hash = tokenHash(token);
    const std::time_t now = m_clock();
    Database::Session session(m_db);
    std::int64_t userId = 0, lastUsed = 0;
    {
        Statement query = session.prepare("SELECT user_id, last_used FROM sessions WHERE token_hash = ?1");
        if (!query.bindAll(hash).nextRow())
            return std::nullopt;
        userId = query.integer(0);
        lastUsed = query.integer(1);
    }
    if (now - lastUsed >= lifetime) {
        session.prepare("DELETE FROM sessions WHERE token_hash = ?1").bindAll(hash).run();
        return std::nullopt;
    }
    if (now - lastUsed >= usePrecision)
        session.prepare("UPDATE sessions SET last_used = ?1 WHERE token_hash = ?2").bindAll(std::int64_t(now), hash).run();
    return userId;
}

void SessionStore::close(const std::string &token)
{
    Database::Session session(m_db);
    session.prepare("DELETE FROM sessions WHERE token_hash = ?1").bindAll(tokenHash(token)).run();
}

std::int64_t signedInUser(SessionStore &sessions, const Query &query, const char *key)
{
    const std::optional<std::int64_t> userId = sessions.userFor(query.required(key));
    if (!userId)
        throw BadInput("Your session has ended. Please log in again.");
    return *userId;
}
