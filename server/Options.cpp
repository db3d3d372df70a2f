// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Options.h"

#include <charconv>
#include <functional>
#include <iostream>
#include <map>

namespace
{
bool parsePort(const std::string &text, int &port)
{
    int value = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 0 || value > 65535)
        return false;
    port = value;
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
           "Defaults: --data ./devserver-data --host 127.0.0.1 --https-port 8443 --http-port 8080\n"
           "          --history-key 0123456789abcdef0123456789abcdef. Port 0 lets the system choose.\n"
           "With OPENWEATHERMAP_API_KEY set, air quality and weather come from OpenWeatherMap.\n";
}

std::optional<Options> parseOptions(const std::vector<std::string> &args)
{
    Options options;
    const std::map<std::string, std::function<bool(const std::string &)>> setters {
        { "--data", [&](const std::string &value) { return options.dataDir = value, true; } },
        { "--host", [&](const std::string &value) { return options.host = value, true; } },
        { "--history-key", [&](const std::string &value) { return options.historyKey = value, true; } },
        { "--https-port", [&](const std::string &value) { return parsePort(value, options.httpsPort); } },
        { "--http-port", [&](const std::string &value) { return parsePort(value, options.httpPort); } },
    };
    for (size_t i = 0; i < args.size(); i += 2) {
        const auto setter = setters.find(args[i]);
        if (setter == setters.end())
            return fail("Unknown option " + args[i]);
        if (i + 1 >= args.size())
            return fail("Missing value for " + args[i]);
        if (args[i + 1].empty() || !setter->second(args[i + 1]))
            return fail("Invalid value for " + args[i] + ": " + args[i + 1]);
    }
    return options;
}
