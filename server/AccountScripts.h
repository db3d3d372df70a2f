// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/ScriptRouter.h"

class UserStore;

// register, login, resetpass, updateuser and logout: the scripts that answer
// with the account itself.
class AccountScripts
{
public:
    explicit AccountScripts(UserStore &users);
    void addTo(ScriptRouter &router);

private:
    ScriptAnswer registerAccount(const Query &query);
    ScriptAnswer login(const Query &query);
    ScriptAnswer resetPassword(const Query &query);
    ScriptAnswer updateUser(const Query &query);
    ScriptAnswer logout(const Query &query);

    UserStore &m_users;
};
