// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>
#include <optional>

struct sqlite3;
struct sqlite3_stmt;

struct PreparedStatementFinalizer {
    void operator()(sqlite3_stmt *statement) const;
};
// Finalized when it goes out of scope; null when it did not prepare.
using PreparedStatement = std::unique_ptr<sqlite3_stmt, PreparedStatementFinalizer>;

// One SQLite connection to a gazetteer file, closed with this object. Like
// any SQLite connection it serves one thread at a time.
class GazetteerDatabase
{
public:
    enum class Mode { Read, Create };

    // A connection that failed to open still says why in errorText().
    GazetteerDatabase(const QString &path, Mode mode);
    ~GazetteerDatabase();
    GazetteerDatabase(const GazetteerDatabase &) = delete;
    GazetteerDatabase &operator=(const GazetteerDatabase &) = delete;

    bool isOpen() const { return m_db != nullptr; }
    QString errorText() const;
    PreparedStatement prepare(const char *sql) const;
    bool execute(const char *sql) const;

private:
    sqlite3 *m_db = nullptr;
    QString m_openError;
};

// Bound as a copy, so the text need not outlive the call.
void bindText(sqlite3_stmt *statement, int index, const QString &text);
// Nothing for SQL NULL.
std::optional<QString> columnText(sqlite3_stmt *statement, int column);
