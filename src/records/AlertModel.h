// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonObject>
#include <QString>

// A message waiting to be shown in an alert.
struct AlertModel {
    QString id;
    QString message;

    static DecodeResult<AlertModel> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};
