// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QTest>

#include <sqlite3.h>

// A second connection beside the store's, for setting up files the store did not
// write and for looking at what it did write. Every failure fails the test.
class RawDatabase
{
public:
    explicit RawDatabase(const QString &path)
    {
        if (sqlite3_open(path.toUtf8().constData(), &m_db) != SQLITE_OK)
            qFatal("cannot open %s: %s", qUtf8Printable(path), sqlite3_errmsg(m_db));
    }
    ~RawDatabase() { sqlite3_close(m_db); }
    RawDatabase(const RawDatabase &) = delete;
    RawDatabase &operator=(const RawDatabase &) = delete;

    bool exec(const QByteArray &sql)
    {
        char *error = nullptr;
        const bool ok = sqlite3_exec(m_db, sql.constData(), nullptr, nullptr, &error) == SQLITE_OK;
        if (!ok)
            qWarning("%s: %s", sql.constData(), error);
        sqlite3_free(error);
        return ok;
    }

private:
    sqlite3 *m_db = nullptr;
};
