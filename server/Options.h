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
};

// The options, or nothing after printing what was wrong to standard error.
std::optional<Options> parseOptions(const std::vector<std::string> &args);

std::string usageText();
