// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

class QQmlEngine;
class QQuickItem;
class QQuickWindow;
class QSize;

// A screen built from its QML file and shown on `window` at `size`, as the app
// shows it; null, with the reason printed, when it cannot be built or shown.
std::unique_ptr<QQuickItem> showScreen(QQmlEngine &engine, QQuickWindow &window, const QString &view, const QSize &size);

// By object name among the visual descendants: a repeater's or a view's
// items hang from the visual tree, not from their QObject parent.
QQuickItem *findItem(QQuickItem *root, const QString &name);
