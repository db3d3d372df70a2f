// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonObject>
#include <QString>

// One subscription package and whether the user holds it.
struct ProfileSubModel {
    QString id;
    QString type;
    QString package;
    QString status;

    static DecodeResult<ProfileSubModel> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};
