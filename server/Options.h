// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

struct Options {
    std::string dataDir = "./devserver-data";
    std::string host = "127.0.0.1";
    int httpsPort = 8443;
    int httpPort = 8080;
    std::string historyKey = "0123456789abcdef0123456789abcdef";
    // The wait after the fifth failed login for an address or a client, in seconds.
    int throttleDelay = 30;
    // Shows reset passwords on the console, where a developer reads them in
    // place of the e-mail a real service would send.
    bool printResetPasswords = false;
    // The upstreams asked for readings, in order: "open-meteo", "openweathermap"
    // (only with OPENWEATHERMAP_API_KEY set). The simulation answers when none does.
    std::vector<std::string> upstreams { "open-meteo", "openweathermap" };
    std::string openMeteoAirUrl = "https://air-quality-api.open-meteo.com";
    std::string openMeteoWeatherUrl = "https://api.open-meteo.com";
    // The most an upstream call may take, name lookup to last byte.
    int upstreamDeadlineMs = 5000;
    // How long an upstream that failed is left alone.
    int upstreamRetrySeconds = 60;
};

// The options, or nothing after printing what was wrong to standard error.
std::optional<Options> parseOptions(const std::vector<std::string> &args);

std::string usageText();
