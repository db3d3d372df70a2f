// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonObject>
#include <QString>

// The medical profile the backend holds for a user, with the status of the
// request that fetched it.
struct ProfileMedDetailsModel {
    QString id;
    QString userid;
    QString conditionstatus;
    QString conditionname;
    QString emergencycontact;
    QString phonenumber;
    QString relationship;
    QString weight;
    QString height;
    QString smokerstatus;
    QString smoker;
    QString moredetails;
    QString scode;
    QString messageresponse;

    static DecodeResult<ProfileMedDetailsModel> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};
