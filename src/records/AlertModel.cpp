// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/AlertModel.h"

#include "records/FieldTable.h"

namespace
{
constexpr TextField<AlertModel> fields[] = {
    { "id", &AlertModel::id },
    { "message", &AlertModel::message },
};
}

DecodeResult<AlertModel> AlertModel::fromJson(const QJsonObject &object)
{
    return decodeFields(object, fields);
}

QJsonObject AlertModel::toJson() const
{
    return encodeFields(*this, fields);
}
