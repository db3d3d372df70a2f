// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/NotificationModel.h"
#include "service/ListFetcher.h"

// The signed-in user's notifications. Unlike the other lists it tells the
// screen while it is loading.
class NotificationUrl : public RecordListFetcher<NotificationModel>
{
    Q_OBJECT
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)

public:
    explicit NotificationUrl(QObject *parent = nullptr);

    bool isLoading() const { return m_isLoading; }

Q_SIGNALS:
    void isLoadingChanged();

private:
    void setBusy(bool busy) override;

    bool m_isLoading = false;
};
