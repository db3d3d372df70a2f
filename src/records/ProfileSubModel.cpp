// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/ProfileSubModel.h"

#include "records/FieldTable.h"

namespace
{
constexpr TextField<ProfileSubModel> fields[] = {
    { "id", &ProfileSubModel::id },
    { "type", &ProfileSubModel::type },
    { "package", &ProfileSubModel::package },
    { "status", &ProfileSubModel::status },
};
}

DecodeResult<ProfileSubModel> ProfileSubModel::fromJson(const QJsonObject &object)
{
    return decodeFields(object, fields);
}

QJsonObject ProfileSubModel::toJson() const
{
    return encodeFields(*this, fields);
}
