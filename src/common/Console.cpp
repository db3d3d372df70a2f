// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/Console.h"

#include <QString>

#include <cstdio>

void Console::printLine(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}
