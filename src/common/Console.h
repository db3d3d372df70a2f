// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

namespace Console
{
// The app's defined console output: one line on standard output, flushed at once
// so that a watcher sees it even if the process dies right after.
void printLine(const QString &line);
} // namespace Console
