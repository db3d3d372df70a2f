// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/AccountScripts.h"

#include "server/Console.h"
#include "server/InputRules.h"
#include "server/LoginThrottle.h"
#include "server/PasswordHash.h"
#include "server/SessionStore.h"
#include "server/UserStore.h"

#include <algorithm>
#include <cctype>

// Required parameters, in the order the app sends them (others may be empty):
//   register.php    fullname, emailaddress, password (referral_code is accepted and unused)
//   login.php       username, passcode
//   resetpass.php   emailaddress
//   updateuser.php  fullname, emailaddress, userid (the session token login gave)
//   logout.php      userid (likewise)
// Optional ones are still checked when given: dateofbirth must be a real day
// written yyyy-MM-dd, gender one of "1" (male), "2" (female), "3" (others).

namespace
{
// Neither names an existing account. The refusal itself still tells a prober
// that the address is taken, since a free one would have been accepted, so
// each such refusal counts as a failure of the client.
const std::string cannotRegister = "This email address cannot be used to register. If it is yours, log in or reset your password.";
const std::string cannotUpdate = "This email address cannot be used for this account.";
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

// Addresses are the same account in any letter case (ASCII, as SQLite's NOCASE).
std::string emailKey(std::string email)
{
    std::transform(email.begin(), email.end(), email.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return "e-mail " + email;
}

std::string clientKey(const ScriptRequest &request)
{
    return "client " + request.clientAddress;
}

std::string durationText(std::chrono::seconds wait)
{
    const auto count = wait.count();
    if (count < 120)
        return std::to_string(count) + (count == 1 ? " second" : " seconds");
    return std::to_string((count + 59) / 60) + " minutes";
}

ScriptAnswer waitAnswer(std::chrono::seconds wait)
{
    return answerWith(refusedRecord("Too many attempts. Please wait " + durationText(wait) + " before trying again."));
}
} // namespace

AccountScripts::AccountScripts(UserStore &users, SessionStore &sessions, LoginThrottle &throttle, ResetPasswords resetPasswords)
    : m_users(users)
    , m_sessions(sessions)
    , m_throttle(throttle)
    , m_resetPasswords(resetPasswords)
    , m_decoyHash(hashPassword(randomReadablePassword()))
{
}

void AccountScripts::addTo(ScriptRouter &router)
{
    const auto refusal = ScriptRouter::Refusal::AccountRecord;
    router.add("register.php", refusal, [this](const ScriptRequest &request) { return registerAccount(request); });
    router.add("login.php", refusal, [this](const ScriptRequest &request) { return login(request); });
    router.add("resetpass.php", refusal, [this](const ScriptRequest &request) { return resetPassword(request.query); });
    router.add("updateuser.php", refusal, [this](const ScriptRequest &request) { return updateUser(request); });
    router.add("logout.php", refusal, [this](const ScriptRequest &request) { return logout(request.query); });
}

ScriptAnswer AccountScripts::registerAccount(const ScriptRequest &request)
{
    const UserDetails details = readDetails(request.query);
    const std::string password = request.query.required("password");
    if (const std::chrono::seconds wait = m_throttle.waitFor(clientKey(request)); wait.count() > 0)
        return waitAnswer(wait);
    const std::optional<User> user = m_users.create(details, hashPassword(password));
    if (!user) {
        m_throttle.recordFailure(clientKey(request));
        return answerWith(refusedRecord(cannotRegister));
    }
    // No session: the app logs in next, as it would after any registration.
    return answerWith(acceptedRecord(*user, "Registration successful. You can now log in."));
}

ScriptAnswer AccountScripts::login(const ScriptRequest &request)
{
    const std::string email = request.query.required("username");
    const std::string password = request.query.required("passcode");
    std::chrono::seconds wait = m_throttle.waitFor(clientKey(request));
    if (wait.count() == 0)
        wait = m_throttle.begin(emailKey(email));
    if (wait.count() > 0)
        return waitAnswer(wait);
    // An unknown address is checked against the decoy, so that it takes as
    // long as a wrong password does.
    const std::optional<UserStore::Credentials> credentials = m_users.credentials(email);
    const bool matches = passwordMatches(password, credentials ? credentials->passwordHash : m_decoyHash);
    if (!credentials || !matches) {
        m_throttle.recordFailure(clientKey(request));
        return answerWith(refusedRecord(wrongCredentials));
    }
    m_throttle.clear(emailKey(email));
    return answerWith(sessionRecord(credentials->user, m_sessions.open(credentials->user.id), "Login successful."));
}

ScriptAnswer AccountScripts::resetPassword(const Query &query)
{
    // An unknown address gets the same answer as a known one: the answer must
    // not tell strangers who has an account. Nothing changes for it, though.
    const std::string email = emailAddress(query, "emailaddress");
    const std::string password = randomReadablePassword();
    if (!m_users.setPasswordHash(email, hashPassword(password)))
        Console::printLine("Password reset asked for " + email + ", which has no account: nothing changed.");
    else if (m_resetPasswords == ResetPasswords::Printed)
        Console::printLine("Password reset for " + email + ": " + password);
    else
        Console::printLine("Password reset for " + email + " (start with --print-reset-passwords to see new passwords).");
    return answerWith(acceptedRecord(User(), "A new password has been sent to your email address."));
}

ScriptAnswer AccountScripts::updateUser(const ScriptRequest &request)
{
    const UserDetails details = readDetails(request.query);
    const std::int64_t id = signedInUser(m_sessions, request.query, "userid");
    if (const std::chrono::seconds wait = m_throttle.waitFor(clientKey(request)); wait.count() > 0)
        return waitAnswer(wait);
    const std::optional<User> updated = m_users.update(id, details);
    if (!updated) {
        m_throttle.recordFailure(clientKey(request));
        return answerWith(refusedRecord(cannotUpdate));
    }
    return answerWith(acceptedRecord(*updated, "Your profile has been updated."));
}

ScriptAnswer AccountScripts::logout(const Query &query)
{
    signedInUser(m_sessions, query, "userid");
    m_sessions.close(query.required("userid"));
    return answerWith(acceptedRecord(User(), "You have been logged out."));
}
