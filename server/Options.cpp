// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Options.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <iostream>
#include <map>

namespace
{
bool parseWhole(const std::string &text, int lowest, int highest, int &number)
{
    int value = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < lowest || value > highest)
        return false;
    number = value;
    return true;
}

// "a,b,simulated": known upstream names, optionally ending with the simulation, which always comes last.
bool parseUpstreams(const std::string &text, std::vector<std::string> &upstreams)
{
    std::vector<std::string> names;
    for (size_t start = 0; start <= text.size();) {
        const size_t comma = std::min(text.find(',', start), text.size());
        names.push_back(text.substr(start, comma - start));
        start = comma + 1;
    }
    if (names.back() == "simulated")
        names.pop_back();
    for (const std::string &name : names)
        if (name != "open-meteo" && name != "openweathermap")
            return false;
    upstreams = names;
    return true;
}

bool parseBaseUrl(const std::string &text, std::string &url)
{
    if (text.rfind("https://", 0) != 0 && text.rfind("http://", 0) != 0)
        return false;
    url = text;
    return true;
}

std::optional<Options> fail(const std::string &problem)
{
    std::cerr << problem << '\n' << usageText();
    return std::nullopt;
}
} // namespace

std::string usageText()
{
    return "Usage: tarnelo-devserver [--data DIR] [--host ADDRESS] [--https-port N] [--http-port N] [--history-key KEY]\n"
           "                         [--throttle-delay SECONDS] [--print-reset-passwords] [--sources LIST]\n"
           "                         [--open-meteo-air-url URL] [--open-meteo-weather-url URL]\n"
           "                         [--upstream-deadline MS] [--upstream-retry SECONDS]\n"
           "Defaults: --data ./devserver-data --host 127.0.0.1 --https-port 8443 --http-port 8080\n"
           "          --history-key 0123456789abcdef0123456789abcdef. Port 0 lets the system choose.\n"
           "After five failed logins for an address or from a client, each further try waits\n"
           "--throttle-delay seconds (default 30), doubling with each failure, at most 15 minutes.\n"
           "--print-reset-passwords shows each reset password on the console; by default only\n"
           "the reset itself is shown.\n"
           "Air quality, weather and history come from the first of --sources (default\n"
           "open-meteo,openweathermap,simulated) that answers; openweathermap only with\n"
           "OPENWEATHERMAP_API_KEY set, and the simulation whenever no upstream answers.\n"
           "--sources simulated keeps the backend off the network. Each upstream call ends\n"
           "within --upstream-deadline milliseconds (default and most 5000); a failed\n"
           "upstream is left alone for --upstream-retry seconds (default 60).\n"
           "--open-meteo-air-url and --open-meteo-weather-url (defaults\n"
           "https://air-quality-api.open-meteo.com and https://api.open-meteo.com) point\n"
           "the Open-Meteo calls elsewhere, for example at a stand-in on loopback.\n";
}

std::optional<Options> parseOptions(const std::vector<std::string> &args)
{
    Options options;
    const std::map<std::string, std::function<bool(const std::string &)>> setters {
        { "--data", [&](const std::string &value) { return options.dataDir = value, true; } },
        { "--host", [&](const std::string &value) { return options.host = value, true; } },
        { "--history-key", [&](const std::string &value) { return options.historyKey = value, true; } },
        { "--https-port", [&](const std::string &value) { return parseWhole(value, 0, 65535, options.httpsPort); } },
        { "--http-port", [&](const std::string &value) { return parseWhole(value, 0, 65535, options.httpPort); } },
        { "--throttle-delay", [&](const std::string &value) { return parseWhole(value, 1, 3600, options.throttleDelay); } },
        { "--sources", [&](const std::string &value) { return parseUpstreams(value, options.upstreams); } },
        { "--open-meteo-air-url", [&](const std::string &value) { return parseBaseUrl(value, options.openMeteoAirUrl); } },
        { "--open-meteo-weather-url", [&](const std::string &value) { return parseBaseUrl(value, options.openMeteoWeatherUrl); } },
        { "--upstream-deadline", [&](const std::string &value) { return parseWhole(value, 1, 5000, options.upstreamDeadlineMs); } },
        { "--upstream-retry", [&](const std::string &value) { return parseWhole(value, 1, 3600, options.upstreamRetrySeconds); } },
    };
    for (size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--print-reset-passwords") {
            options.printResetPasswords = true;
            continue;
        }
        const auto setter = setters.find(args[i]);
        if (setter == setters.end())
            return fail("Unknown option " + args[i]);
        if (i + 1 >= args.size())
            return fail("Missing value for " + args[i]);
        const std::string &value = args[++i];
        if (value.empty() || !setter->second(value))
            return fail("Invalid value for " + setter->first + ": " + value);
    }
    return options;
}
