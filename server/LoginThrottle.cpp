// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/LoginThrottle.h"

#include <algorithm>

using namespace std::chrono;

LoginThrottle::LoginThrottle(seconds baseDelay, Clock clock)
    : m_baseDelay(baseDelay)
    , m_clock(std::move(clock))
    , m_lastSweep(m_clock())
{
}

seconds LoginThrottle::waitLocked(const std::string &key, steady_clock::time_point now)
{
    const auto found = m_records.find(key);
    if (found == m_records.end() || found->second.failures < freeFailures)
        return seconds::zero();
    // Capped before it could overflow: doubling maxDelay's worth is already plenty.
    const int doublings = std::min(found->second.failures - freeFailures, 20);
    const seconds delay = std::min<seconds>(m_baseDelay * (1LL << doublings), maxDelay);
    const auto left = found->second.lastFailure + delay - now;
    return left > steady_clock::duration::zero() ? ceil<seconds>(left) : seconds::zero();
}

void LoginThrottle::failLocked(const std::string &key, steady_clock::time_point now)
{
    // Unbounded keys would let a flood of addresses fill the memory: drop
    // the forgotten ones now and then.
    if (now - m_lastSweep > minutes(1)) {
        for (auto record = m_records.begin(); record != m_records.end();)
            record = now - record->second.lastFailure > memory ? m_records.erase(record) : std::next(record);
        m_lastSweep = now;
    }
    Record &record = m_records[key];
    if (now - record.lastFailure > memory)
        record.failures = 0;
    ++record.failures;
    record.lastFailure = now;
}

seconds LoginThrottle::waitFor(const std::string &key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return waitLocked(key, m_clock());
}

seconds LoginThrottle::begin(const std::string &key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto now = m_clock();
    const seconds wait = waitLocked(key, now);
    if (wait == seconds::zero())
        failLocked(key, now);
    return wait;
}

void LoginThrottle::recordFailure(const std::string &key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    failLocked(key, m_clock());
}

void LoginThrottle::clear(const std::string &key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_records.erase(key);
}
