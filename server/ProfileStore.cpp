// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/ProfileStore.h"

#include "server/Database.h"
#include "server/UtcTime.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace
{
// The newest notifications only: enough for the list the app shows, and an
// answer whose size does not grow with a user's history.
constexpr std::int64_t notificationsListed = 100;

template<size_t N> void bindFrom(Statement &statement, int firstIndex, const std::array<std::string, N> &values)
{
    for (size_t i = 0; i < N; ++i)
        statement.bind(firstIndex + static_cast<int>(i), values[i]);
}
} // namespace

const std::string &MedicalProfile::field(const char *name) const
{
    const auto found = std::find_if(medicalFieldNames.begin(), medicalFieldNames.end(), [name](const char *known) { return std::strcmp(known, name) == 0; });
    if (found == medicalFieldNames.end())
        throw std::logic_error(std::string("no medical field ") + name);
    return fields[static_cast<size_t>(found - medicalFieldNames.begin())];
}

ProfileStore::ProfileStore(Database &db)
    : m_db(db)
{
}

void ProfileStore::saveMedicalProfile(std::int64_t userId, const MedicalFields &fields)
{
    Database::Session session(m_db);
    Statement upsert = session.prepare(R"sql(
        INSERT INTO medical_profiles (user_id, conditionstatus, conditionname, emergencycontact, phonenumber, relationship,
                                      weight, height, smokerstatus, smoker, moredetails)
        VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11)
        ON CONFLICT (user_id) DO UPDATE SET
            conditionstatus = excluded.conditionstatus, conditionname = excluded.conditionname,
            emergencycontact = excluded.emergencycontact, phonenumber = excluded.phonenumber,
            relationship = excluded.relationship, weight = excluded.weight, height = excluded.height,
            smokerstatus = excluded.smokerstatus, smoker = excluded.smoker, moredetails = excluded.moredetails)sql");
    upsert.bind(1, userId);
    bindFrom(upsert, 2, fields);
    upsert.run();
}

std::optional<MedicalProfile> ProfileStore::medicalProfile(std::int64_t userId)
{
    Database::Session session(m_db);
    Statement query = session.prepare("SELECT id, conditionstatus, conditionname, emergencycontact, phonenumber, relationship, "
                                      "weight, height, smokerstatus, smoker, moredetails FROM medical_profiles WHERE user_id = ?1");
    query.bindAll(userId);
    if (!query.nextRow())
        return std::nullopt;
    MedicalProfile profile { query.integer(0), {} };
    for (size_t i = 0; i < profile.fields.size(); ++i)
        profile.fields[i] = query.text(static_cast<int>(i) + 1);
    return profile;
}

std::vector<Subscription> ProfileStore::subscriptions(std::int64_t userId)
{
    Database::Session session(m_db);
    Statement query = session.prepare("SELECT id, type, package, status FROM subscriptions WHERE user_id = ?1 ORDER BY id");
    query.bindAll(userId);
    std::vector<Subscription> rows;
    while (query.nextRow())
        rows.push_back({ query.integer(0), query.text(1), query.text(2), query.text(3) });
    return rows;
}

std::vector<Notification> ProfileStore::notifications(std::int64_t userId)
{
    Database::Session session(m_db);
    Statement query = session.prepare("SELECT id, topic, message, read, posted FROM notifications WHERE user_id = ?1 ORDER BY id DESC LIMIT ?2");
    query.bindAll(userId, notificationsListed);
    std::vector<Notification> rows;
    while (query.nextRow())
        rows.push_back({ query.integer(0), query.text(1), query.text(2), query.integer(3) != 0, query.text(4) });
    return rows;
}

void ProfileStore::addFeedback(std::int64_t userId, const std::string &text)
{
    Database::Session session(m_db);
    session.prepare("INSERT INTO feedback (user_id, text, posted) VALUES (?1, ?2, ?3)").bindAll(userId, text, utcTimestampNow()).run();
}

void ProfileStore::addLocationLog(std::int64_t userId, const LocationReadings &readings)
{
    Database::Session session(m_db);
    Statement insert = session.prepare(R"sql(
        INSERT INTO location_logs (user_id, aqi, co, no, no2, o3, so2, pm25, pm10, nh3, celsius, humidity, wind, uv, pollen,
                                   lat, lon, search_lat, search_lon, logged)
        VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15, ?16, ?17, ?18, ?19, ?20))sql");
    insert.bind(1, userId);
    bindFrom(insert, 2, readings);
    insert.bind(20, utcTimestampNow());
    insert.run();
}
