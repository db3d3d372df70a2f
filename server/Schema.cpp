// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Schema.h"

#include "server/Database.h"

namespace
{
// E-mail addresses are unique regardless of case, as people type them both ways.
constexpr const char *schema = R"sql(
CREATE TABLE IF NOT EXISTS users (
    id INTEGER PRIMARY KEY,
    fullname TEXT NOT NULL,
    email TEXT NOT NULL UNIQUE COLLATE NOCASE,
    phone TEXT NOT NULL,
    dateofbirth TEXT NOT NULL,
    gender TEXT NOT NULL,
    password_hash TEXT NOT NULL,
    registered TEXT NOT NULL
);
CREATE TABLE IF NOT EXISTS medical_profiles (
    id INTEGER PRIMARY KEY,
    user_id INTEGER NOT NULL UNIQUE REFERENCES users(id),
    conditionstatus TEXT NOT NULL,
    conditionname TEXT NOT NULL,
    emergencycontact TEXT NOT NULL,
    phonenumber TEXT NOT NULL,
    relationship TEXT NOT NULL,
    weight TEXT NOT NULL,
    height TEXT NOT NULL,
    smokerstatus TEXT NOT NULL,
    smoker TEXT NOT NULL,
    moredetails TEXT NOT NULL
);
CREATE TABLE IF NOT EXISTS subscriptions (
    id INTEGER PRIMARY KEY,
    user_id INTEGER NOT NULL REFERENCES users(id),
    type TEXT NOT NULL,
    package TEXT NOT NULL,
    status TEXT NOT NULL
);
CREATE TABLE IF NOT EXISTS notifications (
    id INTEGER PRIMARY KEY,
    user_id INTEGER NOT NULL REFERENCES users(id),
    topic TEXT NOT NULL,
    message TEXT NOT NULL,
    read INTEGER NOT NULL DEFAULT 0,
    posted TEXT NOT NULL
);
-- The list scripts read these by user, newest or oldest first: an index on
-- user_id alone serves both orders, since SQLite keeps equal keys in id order.
CREATE INDEX IF NOT EXISTS subscriptions_by_user ON subscriptions (user_id);
CREATE INDEX IF NOT EXISTS notifications_by_user ON notifications (user_id);
CREATE TABLE IF NOT EXISTS feedback (
    id INTEGER PRIMARY KEY,
    user_id INTEGER NOT NULL REFERENCES users(id),
    text TEXT NOT NULL,
    posted TEXT NOT NULL
);
CREATE TABLE IF NOT EXISTS location_logs (
    id INTEGER PRIMARY KEY,
    user_id INTEGER NOT NULL REFERENCES users(id),
    aqi TEXT NOT NULL, co TEXT NOT NULL, no TEXT NOT NULL, no2 TEXT NOT NULL, o3 TEXT NOT NULL,
    so2 TEXT NOT NULL, pm25 TEXT NOT NULL, pm10 TEXT NOT NULL, nh3 TEXT NOT NULL,
    celsius TEXT NOT NULL, humidity TEXT NOT NULL, wind TEXT NOT NULL, uv TEXT NOT NULL, pollen TEXT NOT NULL,
    lat TEXT NOT NULL, lon TEXT NOT NULL, search_lat TEXT NOT NULL, search_lon TEXT NOT NULL,
    logged TEXT NOT NULL
);
-- Sessions are found by their token's hash alone; last_used is in Unix seconds.
CREATE TABLE IF NOT EXISTS sessions (
    token_hash TEXT PRIMARY KEY,
    user_id INTEGER NOT NULL REFERENCES users(id),
    last_used INTEGER NOT NULL
) WITHOUT ROWID;
CREATE INDEX IF NOT EXISTS sessions_by_last_use ON sessions (last_used);
-- Upstream answers for a 0.01° cell during one hour since the epoch.
CREATE TABLE IF NOT EXISTS upstream_answers (
    request TEXT NOT NULL,
    lat_cell INTEGER NOT NULL,
    lon_cell INTEGER NOT NULL,
    hour INTEGER NOT NULL,
    body TEXT NOT NULL,
    PRIMARY KEY (request, lat_cell, lon_cell, hour)
) WITHOUT ROWID;
)sql";
} // namespace

void createSchema(Database &db)
{
    Database::Session(db).execute(schema);
}
