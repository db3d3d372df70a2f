// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/ReadingAge.h"

QString ReadingAge::ago(qint64 seconds)
{
    if (seconds < 60)
        return QStringLiteral("just now");
    if (seconds < 3600)
        return QStringLiteral("%1 min ago").arg(seconds / 60);
    return QStringLiteral("%1 h ago").arg(seconds / 3600);
}
