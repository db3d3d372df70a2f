// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSet>
#include <QString>

#include <functional>

// Desktop notifications through the freedesktop notification service on the
// session bus, sent as "Tarnelo". One per process, since the bus is.
class DesktopNotifier : public QObject
{
    Q_OBJECT

public:
    static DesktopNotifier &instance();

    // Without a notification service this prints one line and does nothing else.
    void notify(const QString &summary, const QString &body);

    // What activating one of this app's notifications does. Set at start
    // without touching the bus, which is only joined at the first notification.
    static void setActivationHandler(std::function<void()> handler);

private Q_SLOTS:
    void onActionInvoked(uint id, const QString &action);

private:
    DesktopNotifier();

    QSet<uint> m_sent;
};
