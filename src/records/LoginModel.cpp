// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/LoginModel.h"

#include "records/FieldTable.h"

namespace
{
constexpr TextField<LoginModel> fields[] = {
    { "userid", &LoginModel::userid },
    { "fullname", &LoginModel::fullname },
    { "phonenumber", &LoginModel::phonenumber },
    { "emailaddress", &LoginModel::emailaddress },
    { "dateofbirth", &LoginModel::dateofbirth },
    { "gender", &LoginModel::gender },
    { "registerdate", &LoginModel::registerdate },
    { "scode", &LoginModel::scode },
    { "messageresponse", &LoginModel::messageresponse },
};
}

DecodeResult<LoginModel> LoginModel::fromJson(const QJsonObject &object)
{
    return decodeFields(object, fields);
}

QJsonObject LoginModel::toJson() const
{
    return encodeFields(*this, fields);
}
