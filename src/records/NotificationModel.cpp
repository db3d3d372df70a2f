// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/NotificationModel.h"

#include "records/FieldTable.h"

namespace
{
constexpr TextField<NotificationModel> fields[] = {
    { "id", &NotificationModel::id },           { "userid", &NotificationModel::userid },           { "topic", &NotificationModel::topic },
    { "message", &NotificationModel::message }, { "readmessage", &NotificationModel::readmessage }, { "posteddate", &NotificationModel::posteddate },
};
}

DecodeResult<NotificationModel> NotificationModel::fromJson(const QJsonObject &object)
{
    return decodeFields(object, fields);
}

QJsonObject NotificationModel::toJson() const
{
    return encodeFields(*this, fields);
}
