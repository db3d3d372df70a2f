// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/RecordFetch.h"

#include "common/Console.h"

void reportFetchFailure(const QString &prefix, const QString &detail, const std::function<void(const QString &)> &onFailure)
{
    const QString line = prefix + detail;
    Console::printLine(line);
    onFailure(line);
}
