// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class Database;

// The medical profile's fields: the app's query keys and the answer's keys alike.
inline constexpr std::array<const char *, 10> medicalFieldNames { "conditionstatus", "conditionname", "emergencycontact", "phonenumber", "relationship",
                                                                  "weight",          "height",        "smokerstatus",     "smoker",      "moredetails" };
using MedicalFields = std::array<std::string, medicalFieldNames.size()>;

struct MedicalProfile {
    std::int64_t id = 0;
    MedicalFields fields;
    const std::string &field(const char *name) const;
};

// A visited position with the readings shown there, in the order the app sends them.
using LocationReadings = std::array<std::string, 18>;

struct Subscription {
    std::int64_t id;
    std::string type, package, status;
};

struct Notification {
    std::int64_t id;
    std::string topic, message;
    bool read;
    std::string posted;
};

// Everything kept about a user besides the account itself. Callers check that
// the user exists; the database's foreign keys refuse rows for unknown users.
class ProfileStore
{
public:
    explicit ProfileStore(Database &db);

    void saveMedicalProfile(std::int64_t userId, const MedicalFields &fields);
    std::optional<MedicalProfile> medicalProfile(std::int64_t userId);
    std::vector<Subscription> subscriptions(std::int64_t userId);
    std::vector<Notification> notifications(std::int64_t userId);
    void addFeedback(std::int64_t userId, const std::string &text);
    void addLocationLog(std::int64_t userId, const LocationReadings &readings);

private:
    Database &m_db;
};
