// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/ProfileMedModel.h"
#include "service/ListFetcher.h"

// The signed-in user's medical conditions.
class ProfileMedicalUrl : public RecordListFetcher<ProfileMedModel>
{
    Q_OBJECT

public:
    explicit ProfileMedicalUrl(QObject *parent = nullptr);
};
