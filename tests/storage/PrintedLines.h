// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common/StdoutCapture.h"

#include <QStringList>

#include <initializer_list>

// The console lines an action printed. Checks belong outside the action: while
// standard output is captured, a failing check's report would be captured too.
template<typename Action> QStringList printedBy(Action &&action)
{
    StdoutCapture capture;
    action();
    return capture.takeLines();
}

inline QStringList lines(std::initializer_list<const char *> texts)
{
    QStringList result;
    for (const char *text : texts)
        result.append(QString::fromUtf8(text));
    return result;
}
