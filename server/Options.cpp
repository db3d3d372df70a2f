// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Options.h"

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

std::optional<Options> fail(const std::string &problem)
{
    std::cerr << problem << '\n' << usageText();
    return std::nullopt;
}
} // namespace

std::string usageText()
{
    return "Usage: tarnelo-devserver [--data DIR] [--host ADDRESS] [--https-port N] [--http-port N] [--history-key KEY]\n"
           "                         [--throttle-delay SECONDS] [--print-reset-passwords]\n"
           "Defaults: --data ./devserver-data --host 127.0.0.1 --https-port 8443 --http-port 8080\n"
           "          --history-key 0123456789abcdef0123456789abcdef. Port 0 lets the system choose.\n"
           "After five failed logins for an address or from a client, each further try waits\n"
           "--throttle-delay seconds (default 30), doubling with each failure, at most 15 minutes.\n"
           "--print-reset-passwords shows each reset password on the console; by default only\n"
           "the reset itself is shown.\n"
           "With OPENWEATHERMAP_API_KEY set, air quality and weather come from OpenWeatherMap.\n";
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
