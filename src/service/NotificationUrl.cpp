// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/NotificationUrl.h"

NotificationUrl::NotificationUrl(QObject *parent)
    : RecordListFetcher(BackendScript::Notification, parent)
{
}

void NotificationUrl::setBusy(bool busy)
{
    m_isLoading = busy;
    Q_EMIT isLoadingChanged();
}
