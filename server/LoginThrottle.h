// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <mutex>
#include <string>

// Slows down password guessing. Each key (an e-mail address, a client
// address) may fail freeFailures times; from then on it must wait before each
// further try: baseDelay after the fifth failure, doubling with each failure
// after it, at most maxDelay. A key's failures are forgotten a day after its
// last one. Safe to use from many threads.
class LoginThrottle
{
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    static constexpr int freeFailures = 5;
    static constexpr std::chrono::seconds maxDelay { 15 * 60 };
    static constexpr std::chrono::hours memory { 24 };

    explicit LoginThrottle(std::chrono::seconds baseDelay, Clock clock = std::chrono::steady_clock::now);

    // How long key must still wait before it may try again; zero when it may now.
    std::chrono::seconds waitFor(const std::string &key);
    // As waitFor, but a try it allows is counted as a failure at once, so that
    // tries running in parallel cannot all slip in before the first fails.
    // clear() takes it back when it succeeds.
    std::chrono::seconds begin(const std::string &key);
    void recordFailure(const std::string &key);
    void clear(const std::string &key);

private:
    struct Record {
        int failures = 0;
        std::chrono::steady_clock::time_point lastFailure;
    };
    std::chrono::seconds waitLocked(const std::string &key, std::chrono::steady_clock::time_point now);
    void failLocked(const std::string &key, std::chrono::steady_clock::time_point now);

    const std::chrono::seconds m_baseDelay;
    const Clock m_clock;
    std::mutex m_mutex;
    std::map<std::string, Record> m_records;
    std::chrono::steady_clock::time_point m_lastSweep;
};
