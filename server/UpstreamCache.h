// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>
#include <functional>
#include <future>
#include <map>
#include <mutex>
#include <string>
#include <tuple>

class Database;

// What an upstream answer holds for: one request kind of one source, a cell
// of 0.01° (about 1 km), one UTC hour.
struct UpstreamKey {
    std::string request; // e.g. "open-meteo air"
    std::int64_t latCell = 0, lonCell = 0; // hundredths of a degree
    std::int64_t hour = 0; // hours since the epoch

    UpstreamKey(std::string request, double lat, double lon, std::time_t when);
    // The cell's centre, the only position an upstream is told.
    double lat() const { return static_cast<double>(latCell) / 100; }
    double lon() const { return static_cast<double>(lonCell) / 100; }
    bool operator<(const UpstreamKey &other) const
    {
        return std::tie(request, latCell, lonCell, hour) < std::tie(other.request, other.latCell, other.lonCell, other.hour);
    }
};

// Upstream answers kept in the backend's database for their hour, so that they
// survive a restart and a place costs each upstream one call an hour.
class UpstreamCache
{
public:
    // After a failed call a request kind is left alone for quietAfterFailure, so
    // that an upstream that is down does not make every request wait for it.
    UpstreamCache(Database &db, std::chrono::seconds quietAfterFailure);

    struct Answer {
        std::string body;
        bool cached = false; // true when this request caused no upstream call
    };

    // The stored answer for key, or else the one fetch returns, stored. fetch
    // throws UpstreamError for an answer it cannot use, which is then not
    // stored. Concurrent requests for one key share one fetch and its outcome.
    Answer get(const UpstreamKey &key, const std::function<std::string()> &fetch);

private:
    std::string stored(const UpstreamKey &key);
    void store(const UpstreamKey &key, const std::string &body);

    Database &m_db;
    const std::chrono::seconds m_quietAfterFailure;
    std::mutex m_mutex;
    std::map<UpstreamKey, std::shared_future<std::string>> m_inFlight;
    struct Failure {
        std::chrono::steady_clock::time_point quietUntil;
        std::string reason;
    };
    std::map<std::string, Failure> m_failures; // by request kind
};
