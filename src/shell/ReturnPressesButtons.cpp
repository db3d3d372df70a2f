// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ReturnPressesButtons.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>

bool ReturnPressesButtons::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
        return false;
    auto *window = qobject_cast<QQuickWindow *>(watched);
    QQuickItem *focused = window ? window->activeFocusItem() : nullptr;
    if (!focused || !focused->inherits("QQuickAbstractButton"))
        return false;
    QKeyEvent space(key->type(), Qt::Key_Space, key->modifiers(), QStringLiteral(" "), key->isAutoRepeat(), key->count());
    QCoreApplication::sendEvent(window, &space);
    return true;
}
