// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Console.h"

#include <cstdio>
#include <mutex>

void Console::printLine(const std::string &line)
{
    static std::mutex mutex;
    const std::lock_guard<std::mutex> lock(mutex);
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}
