// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/NotificationUrl.h"

#include <QObject>
#include <QVariantList>

// The notifications screen: the signed-in user's notifications in the
// backend's order, and what to say while there are none to show.
class NotificationViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY changed)
    // One map per notification: topic, message, posteddate and unread.
    Q_PROPERTY(QVariantList notifications READ notifications NOTIFY changed)
    // The backend answered, with no notifications at all, and nothing is
    // pending or failed since.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)

public:
    explicit NotificationViewModel(QObject *parent = nullptr);

    bool isLoading() const { return m_fetcher->isLoading(); }
    QString errorMessage() const { return m_fetcher->errorMessage(); }
    QVariantList notifications() const;
    bool isEmpty() const;

    Q_INVOKABLE void fetch() { m_fetcher->fetch(); }

Q_SIGNALS:
    void changed();

private:
    NotificationUrl *m_fetcher;
    bool m_answered = false;
};
