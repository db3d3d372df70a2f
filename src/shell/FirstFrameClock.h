// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QQuickWindow;

namespace FirstFrameClock
{
// Prints "first-frame-ns <wall-clock nanoseconds>" on standard error when the
// window has drawn its first frame, then quits. Compared with the time the
// process was started, this gives the start-up time as a user feels it.
void reportAndQuit(QQuickWindow *window);
} // namespace FirstFrameClock
