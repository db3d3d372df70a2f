// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <httplib.h>

#include <string>

class ReadingSources;

// A stand-in for OpenWeatherMap's air pollution history
// (GET /data/2.5/air_pollution/history?lat&lon&start&end&appid), answering in
// that service's shape, numbers and all: one entry per whole hour t with
// start <= t <= end, at most one year apart, from the first source that has
// those hours (a concentration the source lacks is null).
class HistoryService
{
public:
    HistoryService(std::string apiKey, ReadingSources &sources);
    void answer(const httplib::Request &request, httplib::Response &response) const;

    // That service's error shape, {"cod": "<status>", "message": ...}.
    static void refuse(httplib::Response &response, int status, const std::string &message);

private:
    std::string m_apiKey;
    ReadingSources &m_sources;
};
