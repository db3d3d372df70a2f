// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/ScriptRouter.h"

class UserStore;
class SessionStore;
class LoginThrottle;

// register, login, resetpass, updateuser and logout: the scripts that answer
// with the account itself.
class AccountScripts
{
public:
    // Whether a reset password appears on the console, for a developer
    // standing in for the e-mail that would carry it.
    enum class ResetPasswords { Hidden, Printed };

    AccountScripts(UserStore &users, SessionStore &sessions, LoginThrottle &throttle, ResetPasswords resetPasswords);
    void addTo(ScriptRouter &router);

private:
    ScriptAnswer registerAccount(const ScriptRequest &request);
    ScriptAnswer login(const ScriptRequest &request);
    ScriptAnswer resetPassword(const Query &query);
    ScriptAnswer updateUser(const ScriptRequest &request);
    ScriptAnswer logout(const Query &query);

    UserStore &m_users;
    SessionStore &m_sessions;
    LoginThrottle &m_throttle;
    const ResetPasswords m_resetPasswords;
    // Made at start-up, so that the first login for an unknown address costs
    // no more than any other.
    const std::string m_decoyHash;
};
