// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/WindowGrab.h"

#include <QPixmap>
#include <QQuickWindow>
#include <QScreen>

QImage WindowGrab::grab(QQuickWindow *window)
{
    QImage image = window->grabWindow();
    if (image.isNull() && window->screen())
        image = window->screen()->grabWindow(window->winId()).toImage();
    return image;
}
