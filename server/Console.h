// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace Console
{
// One whole line on standard output, flushed at once, with any control
// characters in it escaped. Request threads print concurrently, and scripts
// read these lines, so lines must never interleave.
void printLine(const std::string &line);
} // namespace Console
