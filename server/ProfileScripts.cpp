// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/ProfileScripts.h"

#include "server/ProfileStore.h"
#include "server/UserStore.h"

#include <algorithm>
#include <cstring>

// Required parameters (the others may be missing or empty, and are stored as empty text):
//   savemedical.php          userid, conditionstatus, smokerstatus: the two answers every
//                            profile has; names, contacts and measures are up to the person
//   checkmedicaldetails.php  userid (the fixed tail of zeros the app appends is ignored)
//   checkmedical.php, checksubscription.php, notification.php  userid
//   feedbacks.php            userid, feedback
//   locationlogs.php         user_id, txt_lat, txt_log
// The list scripts answer [] for a well-formed id that has no rows, unknown or not.

namespace
{
constexpr std::array<const char *, 18> locationReadingKeys { "txt_aqi",  "txt_co",     "txt_no",  "txt_no2",        "txt_o3",    "txt_so2",
                                                             "txt_pm25", "txt_pm10",   "txt_nh3", "roundedCelsius", "txt_humid", "txt_wind",
                                                             "txt_uv",   "txt_pollen", "txt_lat", "txt_log",        "searchlat", "searchlog" };
static_assert(locationReadingKeys.size() == std::tuple_size_v<LocationReadings>);

// The values of the keys in order; those named in required must not be empty.
template<size_t N>
std::array<std::string, N> readFields(const Query &query, const std::array<const char *, N> &keys, std::initializer_list<const char *> required)
{
    std::array<std::string, N> values;
    for (size_t i = 0; i < N; ++i) {
        const bool needed = std::any_of(required.begin(), required.end(), [&](const char *key) { return std::strcmp(key, keys[i]) == 0; });
        values[i] = needed ? query.required(keys[i]) : query.optional(keys[i]);
    }
    return values;
}

template<typename Row, typename ToRecord> ScriptAnswer listAnswer(const std::vector<Row> &rows, ToRecord toRecord)
{
    ScriptAnswer answer;
    for (const Row &row : rows)
        answer.body.push_back(toRecord(row));
    return answer;
}
} // namespace

ProfileScripts::ProfileScripts(UserStore &users, ProfileStore &profiles)
    : m_users(users)
    , m_profiles(profiles)
{
}

void ProfileScripts::addTo(ScriptRouter &router)
{
    router.add("savemedical.php", [this](const Query &query) { return saveMedical(query); });
    router.add("checkmedicaldetails.php", [this](const Query &query) { return medicalDetails(query); });
    router.add("checkmedical.php", [this](const Query &query) { return medicalConditions(query); });
    router.add("checksubscription.php", [this](const Query &query) { return subscriptions(query); });
    router.add("notification.php", [this](const Query &query) { return notifications(query); });
    router.add("feedbacks.php", [this](const Query &query) { return feedback(query); });
    router.add("locationlogs.php", [this](const Query &query) { return locationLog(query); });
}

ScriptAnswer ProfileScripts::saveMedical(const Query &query)
{
    const std::int64_t userId = query.userId("userid");
    const MedicalFields fields = readFields(query, medicalFieldNames, { "conditionstatus", "smokerstatus" });
    const std::optional<User> user = m_users.find(userId);
    if (!user)
        return answerWith(unknownUserRecord());
    m_profiles.saveMedicalProfile(userId, fields);
    return answerWith(acceptedRecord(*user, "Your medical details have been saved."));
}

ScriptAnswer ProfileScripts::medicalDetails(const Query &query)
{
    const std::int64_t userId = query.userId("userid");
    const std::optional<MedicalProfile> profile = m_profiles.medicalProfile(userId);
    return profile ? answerWith(medicalDetailsRecord(userId, *profile)) : ScriptAnswer();
}

ScriptAnswer ProfileScripts::medicalConditions(const Query &query)
{
    // The profile holds at most one named condition; a profile without a name lists none.
    const std::optional<MedicalProfile> profile = m_profiles.medicalProfile(query.userId("userid"));
    return profile && !profile->field("conditionname").empty() ? answerWith(medicalConditionRecord(*profile)) : ScriptAnswer();
}

ScriptAnswer ProfileScripts::subscriptions(const Query &query)
{
    return listAnswer(m_profiles.subscriptions(query.userId("userid")), subscriptionRecord);
}

ScriptAnswer ProfileScripts::notifications(const Query &query)
{
    const std::int64_t userId = query.userId("userid");
    return listAnswer(m_profiles.notifications(userId), [userId](const Notification &row) { return notificationRecord(userId, row); });
}

ScriptAnswer ProfileScripts::feedback(const Query &query)
{
    const std::int64_t userId = query.userId("userid");
    const std::string text = query.required("feedback");
    const std::optional<User> user = m_users.find(userId);
    if (!user)
        return answerWith(unknownUserRecord());
    m_profiles.addFeedback(userId, text);
    return answerWith(acceptedRecord(*user, "Thank you for your feedback."));
}

ScriptAnswer ProfileScripts::locationLog(const Query &query)
{
    const LocationReadings readings = readFields(query, locationReadingKeys, { "txt_lat", "txt_log" });
    const std::int64_t userId = query.userId("user_id");
    const std::optional<User> user = m_users.find(userId);
    if (!user)
        return answerWith(unknownUserRecord());
    m_profiles.addLocationLog(userId, readings);
    return answerWith(acceptedRecord(*user, "Location logged."));
}
