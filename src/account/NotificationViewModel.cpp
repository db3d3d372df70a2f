// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/NotificationViewModel.h"

#include <QVariantMap>

NotificationViewModel::NotificationViewModel(QObject *parent)
    : QObject(parent)
    , m_fetcher(new NotificationUrl(this))
{
    connect(m_fetcher, &NotificationUrl::isLoadingChanged, this, &NotificationViewModel::changed);
    connect(m_fetcher, &NotificationUrl::errorMessageChanged, this, &NotificationViewModel::changed);
    connect(m_fetcher, &NotificationUrl::itemsChanged, this, [this] {
        m_answered = true;
        Q_EMIT changed();
    });
}

bool NotificationViewModel::isEmpty() const
{
    return m_answered && m_fetcher->items().isEmpty() && !isLoading() && errorMessage().isEmpty();
}

QVariantList NotificationViewModel::notifications() const
{
    QVariantList list;
    for (const NotificationModel &item : m_fetcher->items()) {
        // The backend marks a notification the user has not read yet with "0".
        list.append(QVariantMap { { QStringLiteral("topic"), item.topic },
                                  { QStringLiteral("message"), item.message },
                                  { QStringLiteral("posteddate"), item.posteddate },
                                  { QStringLiteral("unread"), item.readmessage == QLatin1String("0") } });
    }
    return list;
}
