// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <mutex>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

// A prepared statement whose values are always bound, never spliced into the SQL.
class Statement
{
public:
    Statement(sqlite3 *db, const char *sql);
    ~Statement();
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    // Binds the values to ?1, ?2, ... in order.
    template<typename... Values> Statement &bindAll(const Values &...values)
    {
        int index = 0;
        (bind(++index, values), ...);
        return *this;
    }
    void bind(int index, const std::string &value);
    void bind(int index, const char *value) { bind(index, std::string(value)); }
    void bind(int index, std::int64_t value);

    bool nextRow(); // false once done; throws on error
    void run(); // runs a statement that returns no rows
    std::string text(int column) const;
    std::int64_t integer(int column) const;

private:
    sqlite3 *m_db;
    sqlite3_stmt *m_statement = nullptr;
};

// The one connection of the process. Request threads share it, so every use
// holds the lock: a burst of concurrent writes is serialised, none is lost.
class Database
{
public:
    explicit Database(const std::string &path);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    class Session
    {
    public:
        explicit Session(Database &db);
        Statement prepare(const char *sql) { return Statement(m_db.m_connection, sql); }
        void execute(const char *sql);
        std::int64_t lastInsertId() const;
        int changes() const;

    private:
        Database &m_db;
        std::lock_guard<std::mutex> m_lock;
    };

private:
    sqlite3 *m_connection = nullptr;
    std::mutex m_mutex;
};

// Commits on commit(); rolls back when left early, by return or exception.
class Transaction
{
public:
    explicit Transaction(Database::Session &session);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    void commit();

private:
    Database::Session &m_session;
    bool m_done = false;
};
