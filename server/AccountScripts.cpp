// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/AccountScripts.h"

#include "server/Console.h"
#include "server/InputRules.h"
#include "server/PasswordHash.h"
#include "server/UserStore.h"

// Required parameters, in the order the app sends them (others may be empty):
//   register.php    fullname, emailaddress, password (referral_code is accepted and unused)
//   login.php       username, passcode
//   resetpass.php   emailaddress
//   updateuser.php  fullname, emailaddress, userid
//   logout.php      userid
// Optional ones are still checked when given: dateofbirth must be a real day
// written yyyy-MM-dd, gender one of "1" (male), "2" (female), "3" (others).

namespace
{
const std::string emailTaken = "An account with this email address already exists.";
// One message for both causes, so that the answer does not reveal which addresses have accounts.
const std::string wrongCredentials = "Incorrect email address or password.";

std::string emailAddress(const Query &query, const char *key)
{
    std::string email = query.required(key);
    if (!looksLikeEmail(email))
        throw BadInput("Malformed parameter: " + std::string(key) + " must be an email address");
    return email;
}

UserDetails readDetails(const Query &query)
{
    UserDetails details { query.required("fullname"), query.optional("phonenumber"), emailAddress(query, "emailaddress"), query.optional("dateofbirth"),
                          query.optional("gender") };
    if (!details.dateOfBirth.empty() && !isCalendarDate(details.dateOfBirth))
        throw BadInput("Malformed parameter: dateofbirth must be a date written yyyy-MM-dd");
    if (!details.gender.empty() && details.gender != "1" && details.gender != "2" && details.gender != "3")
        throw BadInput("Malformed parameter: gender must be 1, 2 or 3");
    return details;
}
} // namespace

AccountScripts::AccountScripts(UserStore &users)
    : m_users(users)
{
}

void AccountScripts::addTo(ScriptRouter &router)
{
    router.add("register.php", [this](const Query &query) { return registerAccount(query); });
    router.add("login.php", [this](const Query &query) { return login(query); });
    router.add("resetpass.php", [this](const Query &query) { return resetPassword(query); });
    router.add("updateuser.php", [this](const Query &query) { return updateUser(query); });
    router.add("logout.php", [this](const Query &query) { return logout(query); });
}

ScriptAnswer AccountScripts::registerAccount(const Query &query)
{
    const UserDetails details = readDetails(query);
    const std::string password = query.required("password");
    const std::optional<User> user = m_users.create(details, hashPassword(password));
    if (!user)
        return answerWith(refusedRecord(emailTaken));
    return answerWith(acceptedRecord(*user, "Registration successful. You can now log in."));
}

ScriptAnswer AccountScripts::login(const Query &query)
{
    const std::string email = query.required("username");
    const std::string password = query.required("passcode");
    const std::optional<UserStore::Credentials> credentials = m_users.credentials(email);
    if (!credentials) {
        spendPasswordCheckTime(password);
        return answerWith(refusedRecord(wrongCredentials));
    }
    if (!passwordMatches(password, credentials->passwordHash))
        return answerWith(refusedRecord(wrongCredentials));
    return answerWith(acceptedRecord(credentials->user, "Login successful."));
}

ScriptAnswer AccountScripts::resetPassword(const Query &query)
{
    // An unknown address gets the same answer as a known one: the answer must
    // not tell strangers who has an account. Nothing changes for it, though.
    const std::string email = emailAddress(query, "emailaddress");
    const std::string password = randomReadablePassword();
    if (m_users.setPasswordHash(email, hashPassword(password)))
        Console::printLine("Password reset for " + email + ": " + password);
    else
        Console::printLine("Password reset asked for " + email + ", which has no account: nothing changed.");
    return answerWith(acceptedRecord(User(), "A new password has been sent to your email address."));
}

ScriptAnswer AccountScripts::updateUser(const Query &query)
{
    const UserDetails details = readDetails(query);
    const std::int64_t id = query.userId("userid");
    switch (m_users.update(id, details)) {
    case UserStore::UpdateResult::EmailTaken:
        return answerWith(refusedRecord(emailTaken));
    case UserStore::UpdateResult::UnknownUser:
        return answerWith(unknownUserRecord());
    case UserStore::UpdateResult::Updated:
        break;
    }
    const std::optional<User> user = m_users.find(id);
    return answerWith(user ? acceptedRecord(*user, "Your profile has been updated.") : unknownUserRecord());
}

ScriptAnswer AccountScripts::logout(const Query &query)
{
    const std::optional<User> user = m_users.find(query.userId("userid"));
    return answerWith(user ? acceptedRecord(*user, "You have been logged out.") : unknownUserRecord());
}
