// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/ProfileMedDetailsModel.h"
#include "service/ListFetcher.h"

// The signed-in user's saved medical profile.
class ProfileMedicalDetailsUrl : public RecordListFetcher<ProfileMedDetailsModel>
{
    Q_OBJECT

public:
    explicit ProfileMedicalDetailsUrl(QObject *parent = nullptr);
};
