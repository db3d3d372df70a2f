// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Database.h"

#include "server/PrivateFiles.h"

#include <sqlite3.h>

#include <stdexcept>

namespace
{
[[noreturn]] void fail(sqlite3 *db, const std::string &context)
{
    throw std::runtime_error("SQLite: " + context + ": " + sqlite3_errmsg(db));
}
} // namespace

Statement::Statement(sqlite3 *db, const char *sql)
    : m_db(db)
{
    if (sqlite3_prepare_v2(db, sql, -1, &m_statement, nullptr) != SQLITE_OK)
        fail(db, sql);
}

Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

void Statement::bind(int index, const std::string &value)
{
    if (sqlite3_bind_text(m_statement, index, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT) != SQLITE_OK)
        fail(m_db, "bind");
}

void Statement::bind(int index, std::int64_t value)
{
    if (sqlite3_bind_int64(m_statement, index, value) != SQLITE_OK)
        fail(m_db, "bind");
}

bool Statement::nextRow()
{
    const int result = sqlite3_step(m_statement);
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        fail(m_db, sqlite3_sql(m_statement));
    return false;
}

void Statement::run()
{
    while (nextRow()) { }
}

std::string Statement::text(int column) const
{
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(m_statement, column));
    return bytes ? std::string(bytes, static_cast<size_t>(sqlite3_column_bytes(m_statement, column))) : std::string();
}

std::int64_t Statement::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

Database::Database(const std::string &path)
{
    // The file holds password hashes, and its -wal and -shm companions copies
    // of its pages. SQLite makes new companions with the main file's mode, but
    // files left from an earlier run keep theirs: narrow all three first.
    for (const char *suffix : { "", "-wal", "-shm" })
        restrictExistingFile(path + suffix);
    if (sqlite3_open_v2(path.c_str(), &m_connection, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK) {
        const std::string reason = m_connection ? sqlite3_errmsg(m_connection) : "out of memory";
        sqlite3_close(m_connection);
        throw std::runtime_error("SQLite: cannot open " + path + ": " + reason);
    }
    // Another process (a test, a developer's sqlite3 shell) may read the file.
    sqlite3_busy_timeout(m_connection, 5000);
    Session session(*this);
    session.execute("PRAGMA journal_mode=WAL");
    session.execute("PRAGMA synchronous=NORMAL");
    session.execute("PRAGMA foreign_keys=ON");
}

Database::~Database()
{
    sqlite3_close(m_connection);
}

Database::Session::Session(Database &db)
    : m_db(db)
    , m_lock(db.m_mutex)
{
}

void Database::Session::execute(const char *sql)
{
    char *error = nullptr;
    if (sqlite3_exec(m_db.m_connection, sql, nullptr, nullptr, &error) != SQLITE_OK) {
        const std::string reason = error ? error : "unknown error";
        sqlite3_free(error);
        throw std::runtime_error("SQLite: " + std::string(sql) + ": " + reason);
    }
}

std::int64_t Database::Session::lastInsertId() const
{
    return sqlite3_last_insert_rowid(m_db.m_connection);
}

int Database::Session::changes() const
{
    return sqlite3_changes(m_db.m_connection);
}

Transaction::Transaction(Database::Session &session)
    : m_session(session)
{
    m_session.execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction()
{
    if (m_done)
        return;
    try {
        m_session.execute("ROLLBACK");
    } catch (const std::exception &) {
        // SQLite has already rolled back when the failure ended the transaction itself.
    }
}

void Transaction::commit()
{
    m_session.execute("COMMIT");
    m_done = true;
}
