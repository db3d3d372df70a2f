// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/AfterFirstFrame.h"

#include <QObject>
#include <QPointer>

#include <utility>
#include <vector>

namespace
{
struct HeldWork {
    QPointer<const QObject> context;
    std::function<void()> work;
};

bool held = false;
std::vector<HeldWork> waiting;
} // namespace

void AfterFirstFrame::hold()
{
    held = true;
}

void AfterFirstFrame::release()
{
    held = false;
    std::vector<HeldWork> due;
    due.swap(waiting);
    for (const HeldWork &item : due) {
        if (item.context)
            item.work();
    }
}

bool AfterFirstFrame::isHeld()
{
    return held;
}

void AfterFirstFrame::run(const QObject *context, std::function<void()> work)
{
    if (held)
        waiting.push_back({ context, std::move(work) });
    else
        work();
}
