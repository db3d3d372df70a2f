// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Console.h"

#include <cstdio>
#include <mutex>

std::string Console::percentEscaped(const std::string &text, bool (*keep)(unsigned char byte))
{
    std::string shown;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (keep(byte)) {
            shown += c;
        } else {
            char escaped[4];
            std::snprintf(escaped, sizeof escaped, "%%%02X", byte);
            shown += escaped;
        }
    }
    return shown;
}

void Console::printLine(const std::string &line)
{
    // Lines may carry text from requests: a control character could forge a
    // line or rewrite the terminal.
    const std::string shown = percentEscaped(line, [](unsigned char byte) { return byte >= 0x20 && byte != 0x7f; });
    static std::mutex mutex;
    const std::lock_guard<std::mutex> lock(mutex);
    std::fwrite(shown.data(), 1, shown.size(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}
