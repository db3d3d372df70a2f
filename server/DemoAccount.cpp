// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/DemoAccount.h"

#include "server/PasswordHash.h"
#include "server/UserStore.h"

void DemoAccount::ensure(UserStore &users)
{
    const std::string hash = hashPassword(password);
    if (!users.setPasswordHash(email, hash))
        users.create(UserDetails { "Dana Demo", "+44 20 7946 0000", email, "1990-05-17", "2" }, hash);
}
