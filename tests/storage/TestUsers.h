// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/SQliteLogin.h"

inline User makeUser(const char *userid, const char *fullname)
{
    return User { QString::fromUtf8(userid),    QString::fromUtf8(fullname), QStringLiteral("+44 20 7946 0018"), QStringLiteral("someone@example.org"),
                  QStringLiteral("1990-04-01"), QStringLiteral("2"),         QStringLiteral("2024-01-15") };
}

inline void insertUser(SQliteLogin &store, const User &user)
{
    store.insert(user.userid, user.fullname, user.phonenumber, user.emailaddress, user.dateofbirth, user.gender, user.registerdate);
}

inline void updateUser(SQliteLogin &store, const User &user)
{
    store.update(user.fullname, user.phonenumber, user.emailaddress, user.dateofbirth, user.gender);
}
