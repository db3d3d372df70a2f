// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/ScriptRouter.h"

class SessionStore;
class ProfileStore;

// The scripts about what is kept for a signed-in user: the medical profile,
// subscription, notifications, feedback and visited positions.
class ProfileScripts
{
public:
    ProfileScripts(SessionStore &sessions, ProfileStore &profiles);
    void addTo(ScriptRouter &router);

private:
    ScriptAnswer saveMedical(const Query &query);
    ScriptAnswer medicalDetails(const Query &query);
    ScriptAnswer medicalConditions(const Query &query);
    ScriptAnswer subscriptions(const Query &query);
    ScriptAnswer notifications(const Query &query);
    ScriptAnswer feedback(const Query &query);
    ScriptAnswer locationLog(const Query &query);

    SessionStore &m_sessions;
    ProfileStore &m_profiles;
};
