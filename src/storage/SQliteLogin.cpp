// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/SQliteLogin.h"

#include "common/Console.h"
#include "storage/DocumentsDirectory.h"
#include "storage/OwnerOnlyFile.h"
#include "storage/SqliteStatement.h"
#include "storage/StorageLog.h"

#include <sqlite3.h>

namespace
{
const char createTableSql[] = "CREATE TABLE IF NOT EXISTS UserTable(\n"
                              "id INTEGER PRIMARY KEY AUTOINCREMENT,\n"
                              "userid CHAR(255) NOT NULL,\n"
                              "fullname CHAR(255) NOT NULL,\n"
                              "phonenumber CHAR(255) NOT NULL,\n"
                              "emailaddress CHAR(255) NOT NULL,\n"
                              "dateofbirth CHAR(255) NOT NULL,\n"
                              "gender CHAR(255) NOT NULL,\n"
                              "registerdate CHAR(255) NOT NULL);";
const char insertSql[] = "INSERT INTO UserTable (userid,fullname,phonenumber,emailaddress,dateofbirth,gender,registerdate) VALUES (?,?,?,?,?,?,?);";
const char selectSql[] = "SELECT userid, fullname, phonenumber, emailaddress, dateofbirth, gender, registerdate FROM UserTable;";
const char updateSql[] = "UPDATE UserTable SET fullname = ?, phonenumber = ?, emailaddress = ?, dateofbirth = ?, gender = ?;";
const char deleteSql[] = "DELETE FROM UserTable;";
} // namespace

SQliteLogin::SQliteLogin()
    : SQliteLogin(defaultDatabasePath())
{
}

SQliteLogin::SQliteLogin(const QString &databasePath)
    : db(openDatabase(databasePath))
{
    createTable();
}

SQliteLogin::~SQliteLogin()
{
    if (db)
        sqlite3_close(db);
}

QString SQliteLogin::databaseFileName()
{
    return QStringLiteral("tarnelo_db.sqlite");
}

QString SQliteLogin::defaultDatabasePath()
{
    const QString dir = DocumentsDirectory::path();
    if (dir.isEmpty())
        return {};
    return dir + QLatin1Char('/') + databaseFileName();
}

sqlite3 *SQliteLogin::openDatabase(const QString &path)
{
    // Without a place for the file the app still runs, as a guest.
    // The file is made private before SQLite sees it, since SQLite would create it
    // with whatever mode the umask allows.
    if (path.isEmpty() || !OwnerOnlyFile::ensure(path)) {
        Console::printLine(QStringLiteral("Unable to open database."));
        return nullptr;
    }
    sqlite3 *handle = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &handle) != SQLITE_OK) {
        qCWarning(lcStorage, "sqlite3_open(%s): %s", qUtf8Printable(path), handle ? sqlite3_errmsg(handle) : "out of memory");
        // SQLite hands out a handle even when opening fails; it must still be closed.
        sqlite3_close(handle);
        Console::printLine(QStringLiteral("Unable to open database."));
        return nullptr;
    }
    Console::printLine(QStringLiteral("Successfully opened connection to database at ") + path);
    return handle;
}

void SQliteLogin::createTable()
{
    SqliteStatement statement(db, createTableSql);
    if (!statement.isPrepared()) {
        Console::printLine(QStringLiteral("CREATE TABLE statement could not be prepared. Error: ") + sqliteErrorText(db));
        return;
    }
    // Reported on every construction, also when the table was already there.
    if (statement.step() == SQLITE_DONE)
        Console::printLine(QStringLiteral("Users table created."));
    else
        Console::printLine(QStringLiteral("Could not create Users table. Error: ") + sqliteErrorText(db));
}

void SQliteLogin::insert(const QString &userid, const QString &fullname, const QString &phonenumber, const QString &emailaddress, const QString &dateofbirth,
                         const QString &gender, const QString &registerdate)
{
    SqliteStatement statement(db, insertSql);
    if (!statement.isPrepared()) {
        Console::printLine(QStringLiteral("INSERT statement could not be prepared. Error: ") + sqliteErrorText(db));
        return;
    }
    statement.bindTexts({ userid, fullname, phonenumber, emailaddress, dateofbirth, gender, registerdate });
    if (statement.step() == SQLITE_DONE)
        Console::printLine(QStringLiteral("Successfully inserted row."));
    else
        Console::printLine(QStringLiteral("Could not insert row. Error: ") + sqliteErrorText(db));
}

QList<User> SQliteLogin::readAll()
{
    QList<User> users;
    SqliteStatement statement(db, selectSql);
    if (!statement.isPrepared()) {
        Console::printLine(QStringLiteral("SELECT statement could not be prepared."));
        return users;
    }
    int result;
    while ((result = statement.step()) == SQLITE_ROW) {
        users.append(User { statement.columnText(0), statement.columnText(1), statement.columnText(2), statement.columnText(3), statement.columnText(4),
                            statement.columnText(5), statement.columnText(6) });
    }
    // Readers treat a short list like any other, so a broken read only shows here.
    if (result != SQLITE_DONE)
        qCWarning(lcStorage, "Reading UserTable stopped early: %s", qUtf8Printable(sqliteErrorText(db)));
    return users;
}

void SQliteLogin::update(const QString &fullname, const QString &phonenumber, const QString &emailaddress, const QString &dateofbirth, const QString &gender)
{
    SqliteStatement statement(db, updateSql);
    if (!statement.isPrepared()) {
        Console::printLine(QStringLiteral("UPDATE statement could not be prepared."));
        return;
    }
    statement.bindTexts({ fullname, phonenumber, emailaddress, dateofbirth, gender });
    if (statement.step() == SQLITE_DONE)
        Console::printLine(QStringLiteral("Successfully updated row."));
    else
        Console::printLine(QStringLiteral("Could not update row."));
}

void SQliteLogin::deleteAll()
{
    SqliteStatement statement(db, deleteSql);
    if (!statement.isPrepared()) {
        Console::printLine(QStringLiteral("DELETE statement could not be prepared. Error: ") + sqliteErrorText(db));
        return;
    }
    if (statement.step() == SQLITE_DONE)
        Console::printLine(QStringLiteral("Successfully truncated Users table."));
    else
        Console::printLine(QStringLiteral("Could not truncate Users table. Error: ") + sqliteErrorText(db));
}
