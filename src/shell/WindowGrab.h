// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

class QQuickWindow;

namespace WindowGrab
{
// What the window shows now. Qt 5's software renderer only grabs a window
// that has never been drawn, so a drawn one is read back from the screen.
QImage grab(QQuickWindow *window);
} // namespace WindowGrab
