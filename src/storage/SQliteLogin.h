// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/User.h"

#include <QList>
#include <QString>

struct sqlite3;

// The device's record of who is signed in: the rows of UserTable in the app's
// database file. Every operation reports its outcome as one console line and
// returns no error; a store that could not open keeps working as an empty one.
// Each instance owns its own connection, so several may be open on one file.
class SQliteLogin
{
public:
    // The database in the app's per-user data directory.
    SQliteLogin();
    explicit SQliteLogin(const QString &databasePath);
    ~SQliteLogin();
    SQliteLogin(const SQliteLogin &) = delete;
    SQliteLogin &operator=(const SQliteLogin &) = delete;

    static QString databaseFileName();
    // The database in the app's per-user data directory; empty without one.
    static QString defaultDatabasePath();

    void insert(const QString &userid, const QString &fullname, const QString &phonenumber, const QString &emailaddress, const QString &dateofbirth,
                const QString &gender, const QString &registerdate);
    // All rows in the table's natural order; empty means nobody is signed in.
    QList<User> readAll();
    // Rewrites every row; userid and registerdate stay as they are.
    void update(const QString &fullname, const QString &phonenumber, const QString &emailaddress, const QString &dateofbirth, const QString &gender);
    void deleteAll();

    // The open connection, owned by this object; null when opening failed.
    sqlite3 *db = nullptr;

private:
    static sqlite3 *openDatabase(const QString &path);
    void createTable();
};
