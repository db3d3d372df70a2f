// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class UserStore;

// An ordinary account for trying the app at once; the README names it.
namespace DemoAccount
{
inline constexpr const char *email = "demo@tarnelo.test";
inline constexpr const char *password = "CleanAir2026";

// Creates the account if missing. An existing one gets the demo password back,
// since a reset may have changed it and the start-up line must stay true.
void ensure(UserStore &users);
} // namespace DemoAccount
