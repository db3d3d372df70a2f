// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace Console
{
// One whole line on standard output, flushed at once, with any control
// characters in it escaped. Request threads print concurrently, and scripts
// read these lines, so lines must never interleave.
void printLine(const std::string &line);

// The text with each byte that keep() refuses written as %XX, so that text
// from a request cannot forge a line or reach the terminal as a command.
std::string percentEscaped(const std::string &text, bool (*keep)(unsigned char byte));
} // namespace Console
