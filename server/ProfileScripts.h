// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/ScriptRouter.h"

class UserStore;
class ProfileStore;

// The scripts about what is kept for a signed-in user: the medical profile,
// subscription, notifications, feedback and visited positions.
class ProfileScripts
{
public:
    ProfileScripts(UserStore &users, ProfileStore &profiles);
    void addTo(ScriptRouter &router);

private:
    ScriptAnswer saveMedical(const Query &query);
    ScriptAnswer medicalDetails(const Query &query);
    ScriptAnswer medicalConditions(const Query &query);
    ScriptAnswer subscriptions(const Query &query);
    ScriptAnswer notifications(const Query &query);
    ScriptAnswer feedback(const Query &query);
    ScriptAnswer locationLog(const Query &query);

    UserStore &m_users;
    ProfileStore &m_profiles;
};
