// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <httplib.h>

#include <string>

// A stand-in for OpenWeatherMap's air pollution history
// (GET /data/2.5/air_pollution/history?lat&lon&start&end&appid), answering in
// that service's shape, numbers and all, from the simulation: one entry per
// whole hour t with start <= t <= end, at most one year apart.
class HistoryService
{
public:
    explicit HistoryService(std::string apiKey);
    void answer(const httplib::Request &request, httplib::Response &response) const;

    // That service's error shape, {"cod": "<status>", "message": ...}.
    static void refuse(httplib::Response &response, int status, const std::string &message);

private:
    std::string m_apiKey;
};
