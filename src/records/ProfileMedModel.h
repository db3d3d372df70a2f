// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonObject>
#include <QString>

// One medical condition the user may pick from.
struct ProfileMedModel {
    QString id;
    QString conditionstatus;
    QString conditionname;

    static DecodeResult<ProfileMedModel> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};
