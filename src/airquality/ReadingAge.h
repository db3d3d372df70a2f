// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace ReadingAge
{
// How old a reading of this many seconds is, in words: "just now" under a
// minute, "12 min ago" under an hour, then "3 h ago", always rounded down.
QString ago(qint64 seconds);
} // namespace ReadingAge
