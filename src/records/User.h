// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The signed-in user as the device keeps it: one row of the local store.
// Never exchanged as JSON.
struct User {
    QString userid;
    QString fullname;
    QString phonenumber;
    QString emailaddress;
    QString dateofbirth;
    QString gender;
    QString registerdate;

    friend bool operator==(const User &a, const User &b)
    {
        return a.userid == b.userid && a.fullname == b.fullname && a.phonenumber == b.phonenumber && a.emailaddress == b.emailaddress
            && a.dateofbirth == b.dateofbirth && a.gender == b.gender && a.registerdate == b.registerdate;
    }
    friend bool operator!=(const User &a, const User &b) { return !(a == b); }
};
