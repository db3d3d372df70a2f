// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/UpstreamCache.h"

#include "server/Database.h"
#include "server/UpstreamGet.h"

#include <cmath>

UpstreamKey::UpstreamKey(std::string request, double lat, double lon, std::time_t when)
    : request(std::move(request))
    , latCell(std::llround(lat * 100))
    , lonCell(std::llround(lon * 100))
    , hour(static_cast<std::int64_t>(when) / 3600)
{
}

UpstreamCache::UpstreamCache(Database &db, std::chrono::seconds quietAfterFailure)
    : m_db(db)
    , m_quietAfterFailure(quietAfterFailure)
{
}

std::string UpstreamCache::stored(const UpstreamKey &key)
{
    Database::Session session(m_db);
    Statement select = session.prepare("SELECT body FROM upstream_answers WHERE request = ?1 AND lat_cell = ?2 AND lon_cell = ?3 AND hour = ?4");
    select.bindAll(key.request, key.latCell, key.lonCell, key.hour);
    return select.nextRow() ? select.text(0) : std::string();
}

void UpstreamCache::store(const UpstreamKey &key, const std::string &body)
{
    Database::Session session(m_db);
    Transaction transaction(session);
    // Only the current hour is ever asked for again.
    session.prepare("DELETE FROM upstream_answers WHERE hour < ?1").bindAll(key.hour).run();
    session.prepare("INSERT OR REPLACE INTO upstream_answers (request, lat_cell, lon_cell, hour, body) VALUES (?1, ?2, ?3, ?4, ?5)")
        .bindAll(key.request, key.latCell, key.lonCell, key.hour, body)
        .run();
    transaction.commit();
}

UpstreamCache::Answer UpstreamCache::get(const UpstreamKey &key, const std::function<std::string()> &fetch)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (std::string body = stored(key); !body.empty())
        return { std::move(body), true };
    if (const auto failure = m_failures.find(key.request); failure != m_failures.end() && std::chrono::steady_clock::now() < failure->second.quietUntil)
        throw UpstreamError("not asked again so soon after: " + failure->second.reason);
    if (const auto shared = m_inFlight.find(key); shared != m_inFlight.end()) {
        std::shared_future<std::string> outcome = shared->second;
        lock.unlock();
        return { outcome.get(), true };
    }
    std::promise<std::string> promise;
    m_inFlight.emplace(key, promise.get_future().share());
    lock.unlock();

    try {
        std::string body = fetch();
        store(key, body);
        lock.lock();
        m_failures.erase(key.request);
        m_inFlight.erase(key);
        promise.set_value(body);
        return { std::move(body), false };
    } catch (const std::exception &error) {
        lock.lock();
        m_failures[key.request] = { std::chrono::steady_clock::now() + m_quietAfterFailure, error.what() };
        m_inFlight.erase(key);
        promise.set_exception(std::current_exception());
        throw;
    }
}
