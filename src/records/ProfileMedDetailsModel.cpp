// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/ProfileMedDetailsModel.h"

#include "records/FieldTable.h"

namespace
{
constexpr TextField<ProfileMedDetailsModel> fields[] = {
    { "id", &ProfileMedDetailsModel::id },
    { "userid", &ProfileMedDetailsModel::userid },
    { "conditionstatus", &ProfileMedDetailsModel::conditionstatus },
    { "conditionname", &ProfileMedDetailsModel::conditionname },
    { "emergencycontact", &ProfileMedDetailsModel::emergencycontact },
    { "phonenumber", &ProfileMedDetailsModel::phonenumber },
    { "relationship", &ProfileMedDetailsModel::relationship },
    { "weight", &ProfileMedDetailsModel::weight },
    { "height", &ProfileMedDetailsModel::height },
    { "smokerstatus", &ProfileMedDetailsModel::smokerstatus },
    { "smoker", &ProfileMedDetailsModel::smoker },
    { "moredetails", &ProfileMedDetailsModel::moredetails },
    { "scode", &ProfileMedDetailsModel::scode },
    { "messageresponse", &ProfileMedDetailsModel::messageresponse },
};
}

DecodeResult<ProfileMedDetailsModel> ProfileMedDetailsModel::fromJson(const QJsonObject &object)
{
    return decodeFields(object, fields);
}

QJsonObject ProfileMedDetailsModel::toJson() const
{
    return encodeFields(*this, fields);
}
