// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/ProfileSubModel.h"
#include "service/ListFetcher.h"

// The signed-in user's subscription.
class ProfileSubscriptiontUrl : public RecordListFetcher<ProfileSubModel>
{
    Q_OBJECT

public:
    explicit ProfileSubscriptiontUrl(QObject *parent = nullptr);
};
