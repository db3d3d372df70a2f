// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/AlertModel.h"

#include "records/TextRecord.h"

namespace
{
constexpr TextField<AlertModel> fields[] = {
    { "id", &AlertModel::id },
    { "message", &AlertModel::message },
};
}

DecodeResult<AlertModel> AlertModel::fromJson(const QJsonObject &object)
{
    return decodeTextRecord(object, fields);
}

QJsonObject AlertModel::toJson() const
{
    return encodeTextRecord(*this, fields);
}
