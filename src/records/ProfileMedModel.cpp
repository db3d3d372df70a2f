// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/ProfileMedModel.h"

#include "records/FieldTable.h"

namespace
{
constexpr TextField<ProfileMedModel> fields[] = {
    { "id", &ProfileMedModel::id },
    { "conditionstatus", &ProfileMedModel::conditionstatus },
    { "conditionname", &ProfileMedModel::conditionname },
};
}

DecodeResult<ProfileMedModel> ProfileMedModel::fromJson(const QJsonObject &object)
{
    return decodeFields(object, fields);
}

QJsonObject ProfileMedModel::toJson() const
{
    return encodeFields(*this, fields);
}
