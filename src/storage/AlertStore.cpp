// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/AlertStore.h"

#include "storage/OwnerOnlyFile.h"
#include "storage/SQliteLogin.h"
#include "storage/SqliteStatement.h"
#include "storage/StorageLog.h"

#include <sqlite3.h>

namespace
{
// The trigger needs the users' table, which exists once anyone has signed in;
// before that there is nobody whose alerts it could remove.
const char schema[] = R"sql(
CREATE TABLE IF NOT EXISTS AlertSettings (userid TEXT PRIMARY KEY, enabled INTEGER NOT NULL, level INTEGER, above INTEGER NOT NULL);
CREATE TABLE IF NOT EXISTS ReceivedAlerts (id INTEGER PRIMARY KEY, userid TEXT NOT NULL, time TEXT NOT NULL, category INTEGER NOT NULL, town TEXT NOT NULL);
CREATE TABLE IF NOT EXISTS LastReading (id INTEGER PRIMARY KEY CHECK (id = 1), readings TEXT NOT NULL, town TEXT NOT NULL,
                                        latitude TEXT NOT NULL, longitude TEXT NOT NULL, time TEXT NOT NULL);
CREATE TRIGGER IF NOT EXISTS AlertsLeaveWithTheirUser AFTER DELETE ON UserTable BEGIN
    DELETE FROM AlertSettings WHERE userid = OLD.userid;
    DELETE FROM ReceivedAlerts WHERE userid = OLD.userid;
END;
)sql";

constexpr int keptAlerts = 50;
const QChar separator = QLatin1Char('\x1f');
} // namespace

AlertStore::AlertStore()
    : AlertStore(SQliteLogin::defaultDatabasePath())
{
}

AlertStore::AlertStore(const QString &databasePath)
{
    if (databasePath.isEmpty() || !OwnerOnlyFile::ensure(databasePath) || sqlite3_open(databasePath.toUtf8().constData(), &m_db) != SQLITE_OK) {
        qCWarning(lcStorage) << "No alert store at" << databasePath << sqliteErrorText(m_db);
        sqlite3_close(m_db);
        m_db = nullptr;
        return;
    }
    sqlite3_busy_timeout(m_db, 2000);
    char *error = nullptr;
    if (sqlite3_exec(m_db, schema, nullptr, nullptr, &error) != SQLITE_OK)
        qCInfo(lcStorage) << "Alert store:" << error;
    sqlite3_free(error);
}

AlertStore::~AlertStore()
{
    sqlite3_close(m_db);
}

bool AlertStore::run(const char *sql, const QStringList &values)
{
    SqliteStatement statement(m_db, sql);
    statement.bindTexts(values);
    const bool done = statement.isPrepared() && statement.step() == SQLITE_DONE;
    if (!done)
        qCWarning(lcStorage) << "Alert store:" << sqliteErrorText(m_db);
    return done;
}

QString AlertStore::signedInUser()
{
    SqliteStatement select(m_db, "SELECT userid FROM UserTable ORDER BY id LIMIT 1");
    return select.isPrepared() && select.step() == SQLITE_ROW ? select.columnText(0) : QString();
}

AlertSettings AlertStore::settings(const QString &userid)
{
    SqliteStatement select(m_db, "SELECT enabled, level, above FROM AlertSettings WHERE userid = ?");
    select.bindTexts({ userid });
    AlertSettings settings;
    if (select.isPrepared() && select.step() == SQLITE_ROW) {
        settings.enabled = select.columnText(0) == QLatin1String("1");
        bool isLevel = false;
        const int level = select.columnText(1).toInt(&isLevel);
        if (isLevel && level >= 1 && level <= 6)
            settings.level = level;
        settings.above = select.columnText(2) == QLatin1String("1");
    }
    return settings;
}

void AlertStore::saveSettings(const QString &userid, const AlertSettings &settings)
{
    const auto flag = [](bool on) { return on ? QStringLiteral("1") : QStringLiteral("0"); };
    run("INSERT OR REPLACE INTO AlertSettings (userid, enabled, level, above) VALUES (?, ?, NULLIF(?, ''), ?)",
        { userid, flag(settings.enabled), settings.level ? QString::number(*settings.level) : QString(), flag(settings.above) });
}

QList<ReceivedAlert> AlertStore::receivedAlerts(const QString &userid)
{
    SqliteStatement select(m_db, "SELECT time, category, town FROM ReceivedAlerts WHERE userid = ? ORDER BY id DESC");
    select.bindTexts({ userid });
    QList<ReceivedAlert> alerts;
    while (select.isPrepared() && select.step() == SQLITE_ROW)
        alerts.append({ QDateTime::fromString(select.columnText(0), Qt::ISODate), select.columnText(1).toInt(), select.columnText(2) });
    return alerts;
}

void AlertStore::addReceivedAlert(const QString &userid, const ReceivedAlert &alert)
{
    run("INSERT INTO ReceivedAlerts (userid, time, category, town) VALUES (?, ?, ?, ?)",
        { userid, alert.time.toUTC().toString(Qt::ISODate), QString::number(alert.category), alert.town });
    run("DELETE FROM ReceivedAlerts WHERE userid = ? AND id NOT IN (SELECT id FROM ReceivedAlerts WHERE userid = ? ORDER BY id DESC LIMIT ?)",
        { userid, userid, QString::number(keptAlerts) });
}

std::optional<LastReading> AlertStore::lastReading()
{
    SqliteStatement select(m_db, "SELECT readings, town, latitude, longitude, time FROM LastReading WHERE id = 1");
    if (!select.isPrepared() || select.step() != SQLITE_ROW)
        return std::nullopt;
    LastReading reading { select.columnText(0).split(separator), select.columnText(1), select.columnText(2), select.columnText(3),
                          QDateTime::fromString(select.columnText(4), Qt::ISODate) };
    if (reading.readings.size() != 9 || !reading.time.isValid())
        return std::nullopt;
    return reading;
}

void AlertStore::saveLastReading(const LastReading &reading)
{
    run("INSERT OR REPLACE INTO LastReading (id, readings, town, latitude, longitude, time) VALUES (1, ?, ?, ?, ?, ?)",
        { reading.readings.join(separator), reading.town, reading.latitude, reading.longitude, reading.time.toUTC().toString(Qt::ISODate) });
}
