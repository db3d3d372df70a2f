// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

struct sqlite3;
struct sqlite3_stmt;

// One prepared statement, finalized when it goes out of scope so that no path
// through an operation can leak it. A null connection is never handed to SQLite:
// the statement then simply stays unprepared, like one whose preparation failed.
class SqliteStatement
{
public:
    SqliteStatement(sqlite3 *db, const char *sql);
    ~SqliteStatement();
    SqliteStatement(const SqliteStatement &) = delete;
    SqliteStatement &operator=(const SqliteStatement &) = delete;

    bool isPrepared() const { return m_stmt != nullptr; }

    // Binds values to parameters 1, 2, ... in order, as text.
    void bindTexts(const QStringList &values);
    int step();
    // The text of a column of the current row; NULL reads as empty text.
    QString columnText(int column) const;

private:
    sqlite3_stmt *m_stmt = nullptr;
    // SQLite reads bound text in place at step time, so the UTF-8 buffers live
    // exactly as long as the statement.
    QVector<QByteArray> m_boundTexts;
};

// The connection's last error message; a missing connection has none of its own.
QString sqliteErrorText(sqlite3 *db);
