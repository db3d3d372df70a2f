// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/ProfileScripts.h"

#include "server/ProfileStore.h"
#include "server/SessionStore.h"
#include "server/UserStore.h"

#include <algorithm>
#include <cstring>

// Required parameters (the others may be missing or empty, and are stored as
// empty text); userid and user_id are the session token that login gave:
//   savemedical.php          userid, conditionstatus, smokerstatus: the two answers every
//                            profile has; names, contacts and measures are up to the person
//   checkmedicaldetails.php  userid (the fixed tail of zeros the app appends is ignored)
//   checkmedical.php, checksubscription.php, notification.php  userid
//   feedbacks.php            userid, feedback
//   locationlogs.php         user_id, txt_lat, txt_log
// The list scripts answer [] when there are no rows, and to every refusal.

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

ProfileScripts::ProfileScripts(SessionStore &sessions, ProfileStore &profiles)
    : m_sessions(sessions)
    , m_profiles(profiles)
{
}

void ProfileScripts::addTo(ScriptRouter &router)
{
    using Refusal = ScriptRouter::Refusal;
    router.add("savemedical.php", Refusal::AccountRecord, [this](const ScriptRequest &request) { return saveMedical(request.query); });
    router.add("checkmedicaldetails.php", Refusal::EmptyList, [this](const ScriptRequest &request) { return medicalDetails(request.query); });
    router.add("checkmedical.php", Refusal::EmptyList, [this](const ScriptRequest &request) { return medicalConditions(request.query); });
    router.add("checksubscription.php", Refusal::EmptyList, [this](const ScriptRequest &request) { return subscriptions(request.query); });
    router.add("notification.php", Refusal::EmptyList, [this](const ScriptRequest &request) { return notifications(request.query); });
    router.add("feedbacks.php", Refusal::AccountRecord, [this](const ScriptRequest &request) { return feedback(request.query); });
    router.add("locationlogs.php", Refusal::AccountRecord, [this](const ScriptRequest &request) { return locationLog(request.query); });
}

// The answers to writes name no user: the app reads only their scode and message.

ScriptAnswer ProfileScripts::saveMedical(const Query &query)
{
    const MedicalFields fields = readFields(query, medicalFieldNames, { "conditionstatus", "smokerstatus" });
    m_profiles.saveMedicalProfile(signedInUser(m_sessions, query, "userid"), fields);
    return answerWith(acceptedRecord(User(), "Your medical details have been saved."));
}

ScriptAnswer ProfileScripts::medicalDetails(const Query &query)
{
    const std::optional<MedicalProfile> profile = m_profiles.medicalProfile(signedInUser(m_sessions, query, "userid"));
    return profile ? answerWith(medicalDetailsRecord(*profile)) : ScriptAnswer();
}

ScriptAnswer ProfileScripts::medicalConditions(const Query &query)
{
    // The profile holds at most one named condition; a profile without a name lists none.
    const std::optional<MedicalProfile> profile = m_profiles.medicalProfile(signedInUser(m_sessions, query, "userid"));
    return profile && !profile->field("conditionname").empty() ? answerWith(medicalConditionRecord(*profile)) : ScriptAnswer();
}

ScriptAnswer ProfileScripts::subscriptions(const Query &query)
{
    return listAnswer(m_profiles.subscriptions(signedInUser(m_sessions, query, "userid")), subscriptionRecord);
}

ScriptAnswer ProfileScripts::notifications(const Query &query)
{
    return listAnswer(m_profiles.notifications(signedInUser(m_sessions, query, "userid")), notificationRecord);
}

ScriptAnswer ProfileScripts::feedback(const Query &query)
{
    const std::string text = query.required("feedback");
    m_profiles.addFeedback(signedInUser(m_sessions, query, "userid"), text);
    return answerWith(acceptedRecord(User(), "Thank you for your feedback."));
}

ScriptAnswer ProfileScripts::locationLog(const Query &query)
{
    const LocationReadings readings = readFields(query, locationReadingKeys, { "txt_lat", "txt_log" });
    m_profiles.addLocationLog(signedInUser(m_sessions, query, "user_id"), readings);
    return answerWith(acceptedRecord(User(), "Location logged."));
}
