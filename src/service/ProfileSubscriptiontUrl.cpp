// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ProfileSubscriptiontUrl.h"

ProfileSubscriptiontUrl::ProfileSubscriptiontUrl(QObject *parent)
    : RecordListFetcher(BackendScript::CheckSubscription, parent)
{
}
