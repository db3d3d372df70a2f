// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/GazetteerDatabase.h"

#include <QFile>

#include <sqlite3.h>

void PreparedStatementFinalizer::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

GazetteerDatabase::GazetteerDatabase(const QString &path, Mode mode)
{
    const int flags = mode == Mode::Read ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &m_db, flags, nullptr) != SQLITE_OK) {
        m_openError = QString::fromUtf8(sqlite3_errmsg(m_db));
        sqlite3_close(m_db);
        m_db = nullptr;
    }
}

GazetteerDatabase::~GazetteerDatabase()
{
    sqlite3_close(m_db);
}

QString GazetteerDatabase::errorText() const
{
    return m_db ? QString::fromUtf8(sqlite3_errmsg(m_db)) : m_openError;
}

PreparedStatement GazetteerDatabase::prepare(const char *sql) const
{
    sqlite3_stmt *statement = nullptr;
    if (m_db)
        sqlite3_prepare_v2(m_db, sql, -1, &statement, nullptr);
    return PreparedStatement(statement);
}

bool GazetteerDatabase::execute(const char *sql) const
{
    return m_db && sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

void bindText(sqlite3_stmt *statement, int index, const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    sqlite3_bind_text(statement, index, utf8.constData(), utf8.size(), SQLITE_TRANSIENT);
}

std::optional<QString> columnText(sqlite3_stmt *statement, int column)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
    if (!text)
        return std::nullopt;
    return QString::fromUtf8(text, sqlite3_column_bytes(statement, column));
}
