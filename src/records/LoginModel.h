// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonObject>
#include <QString>

// What the account scripts (login, registration, profile update, password
// reset, feedback) answer with: the user as the backend now has it, then a
// status code and a message for the user. Without the user fields the answer
// does not decode, which the screens treat as a failed request.
struct LoginModel {
    QString userid;
    QString fullname;
    QString phonenumber;
    QString emailaddress;
    QString dateofbirth;
    QString gender;
    QString registerdate;
    QString scode;
    QString messageresponse;

    static DecodeResult<LoginModel> fromJson(const QJsonObject &object);
    QJsonObject toJson() const;
};
