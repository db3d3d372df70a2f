// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct sqlite3;

// A user's air alerts: off at first; the level is a category, 1 to 6, or
// nothing until one is chosen. `above` remembers whether the last check was at
// or past the level, so that rising past it warns once, also across restarts.
struct AlertSettings {
    bool enabled = false;
    std::optional<int> level;
    bool above = false;
};

struct ReceivedAlert {
    QDateTime time;
    int category = 0;
    QString town;
};

// The last air-quality answer the dashboard decoded, and where and when.
struct LastReading {
    QStringList readings; // aqi, co, no, no2, o3, so2, pm25, pm10, nh3
    QString town;
    QString latitude, longitude;
    QDateTime time;
};

// What the app keeps about the air beside the signed-in user, in the same
// local database: each user's alert settings and the last 50 alerts they
// received, both gone when the user's row is (at logout), and the last
// reading, which is kept then, since it names a town and no one.
class AlertStore
{
public:
    AlertStore();
    explicit AlertStore(const QString &databasePath);
    ~AlertStore();
    AlertStore(const AlertStore &) = delete;
    AlertStore &operator=(const AlertStore &) = delete;

    // The signed-in user's id, empty for a guest.
    QString signedInUser();
    AlertSettings settings(const QString &userid);
    void saveSettings(const QString &userid, const AlertSettings &settings);
    // Newest first.
    QList<ReceivedAlert> receivedAlerts(const QString &userid);
    void addReceivedAlert(const QString &userid, const ReceivedAlert &alert);

    std::optional<LastReading> lastReading();
    void saveLastReading(const LastReading &reading);

private:
    bool run(const char *sql, const QStringList &values);

    sqlite3 *m_db = nullptr;
};
