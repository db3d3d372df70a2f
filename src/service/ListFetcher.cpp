// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ListFetcher.h"

#include "service/BackendQuery.h"

ListFetcher::ListFetcher(BackendScript script, QObject *parent)
    : QObject(parent)
    , m_script(script)
{
}

void ListFetcher::fetch()
{
    const QList<User> users = loginProfileTable.readAll();
    const QString userid = users.isEmpty() ? QString() : users.first().userid;
    const QUrl url = requestUrl(backendRequestText(m_script, { { "userid", userid } }));
    if (url.isEmpty())
        return;
    setBusy(true);
    requestItems(url);
}

void ListFetcher::itemsPublished()
{
    if (!m_errorMessage.isNull()) {
        m_errorMessage.clear();
        Q_EMIT errorMessageChanged();
    }
    Q_EMIT itemsChanged();
    setBusy(false);
}

void ListFetcher::failed(const QString &message)
{
    m_errorMessage = message;
    Q_EMIT errorMessageChanged();
    setBusy(false);
}
