// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/SqliteStatement.h"

#include "storage/StorageLog.h"

#include <sqlite3.h>

namespace
{
// SQLITE_STATIC, spelled without the macro's cast of a literal zero.
const sqlite3_destructor_type staticText = nullptr;
} // namespace

SqliteStatement::SqliteStatement(sqlite3 *db, const char *sql)
{
    if (!db)
        return;
    if (sqlite3_prepare_v2(db, sql, -1, &m_stmt, nullptr) != SQLITE_OK) {
        sqlite3_finalize(m_stmt);
        m_stmt = nullptr;
    }
}

SqliteStatement::~SqliteStatement()
{
    if (m_stmt)
        sqlite3_finalize(m_stmt);
}

void SqliteStatement::bindTexts(const QStringList &values)
{
    m_boundTexts.reserve(m_boundTexts.size() + values.size());
    for (const QString &value : values) {
        // A null QString still yields a zero-terminated empty buffer, so a
        // missing value is stored as empty text rather than SQL NULL.
        m_boundTexts.append(value.toUtf8());
        sqlite3_bind_text(m_stmt, m_boundTexts.size(), m_boundTexts.constLast().constData(), -1, staticText);
    }
}

int SqliteStatement::step()
{
    return sqlite3_step(m_stmt);
}

QString SqliteStatement::columnText(int column) const
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(m_stmt, column));
    if (!text) {
        // A file written by something else can break the schema's promise;
        // one odd value must not take the session down with it.
        const char *name = sqlite3_column_name(m_stmt, column);
        qCWarning(lcStorage, "Column %s holds NULL; reading it as empty text", name ? name : "?");
        return {};
    }
    return QString::fromUtf8(text, sqlite3_column_bytes(m_stmt, column));
}

QString sqliteErrorText(sqlite3 *db)
{
    return db ? QString::fromUtf8(sqlite3_errmsg(db)) : QStringLiteral("database is not open");
}
