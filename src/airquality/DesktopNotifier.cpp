// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/DesktopNotifier.h"

#include "common/Console.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace
{
const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");

std::function<void()> &activationHandler()
{
    static std::function<void()> handler;
    return handler;
}
} // namespace

void DesktopNotifier::setActivationHandler(std::function<void()> handler)
{
    activationHandler() = std::move(handler);
}

DesktopNotifier &DesktopNotifier::instance()
{
    static DesktopNotifier notifier;
    return notifier;
}

DesktopNotifier::DesktopNotifier()
{
    QDBusConnection::sessionBus().connect(service, path, service, QStringLiteral("ActionInvoked"), this, SLOT(onActionInvoked(uint, QString)));
}

void DesktopNotifier::notify(const QString &summary, const QString &body)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("Notify"));
    // The "default" action is what activating the notification itself does.
    call << QStringLiteral("Tarnelo") << uint(0) << QStringLiteral("org.tarnelo.Tarnelo") << summary << body
         << QStringList { QStringLiteral("default"), QStringLiteral("Open Tarnelo") }
         << QVariantMap { { QStringLiteral("urgency"), QVariant::fromValue(uchar(1)) } } << -1;
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call, 5000), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *finished) {
        const QDBusPendingReply<uint> reply = *finished;
        if (reply.isError())
            Console::printLine(QStringLiteral("Desktop notification not shown: ") + reply.error().message());
        else
            m_sent.insert(reply.value());
        finished->deleteLater();
    });
}

void DesktopNotifier::onActionInvoked(uint id, const QString &action)
{
    if (m_sent.contains(id) && action == QLatin1String("default") && activationHandler())
        activationHandler()();
}
