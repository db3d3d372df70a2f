// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonObject>
#include <QString>

// One notification addressed to the user. The read flag and the date stay
// text exactly as the backend sent them.
struct NotificationModel {
    QString id;
    QString userid;
    QString topic;
    QString message;
    QString readmessage;
    QString posteddate;

    static DecodeResult<NotificationModel> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};
