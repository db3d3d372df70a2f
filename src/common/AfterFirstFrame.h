// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QObject;

// Work the first frame must not wait for, such as loading a position plugin:
// the app holds it until its window has drawn once. Where nothing holds it (a
// test, a tool), the work runs at once.
namespace AfterFirstFrame
{
// Holds every later run() until release().
void hold();
// Runs what was held, in the order it came; later work runs at once again.
void release();
// Whether work is held now.
bool isHeld();
// Runs `work` now or, while held, on release unless `context` is gone by then.
void run(const QObject *context, std::function<void()> work);
} // namespace AfterFirstFrame
