// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>

class Database;

// What a person states about themselves and may change later.
struct UserDetails {
    std::string fullname;
    std::string phone;
    std::string email;
    std::string dateOfBirth;
    std::string gender;
};

struct User {
    std::int64_t id = 0;
    UserDetails details;
    std::string registered;
};

class UserStore
{
public:
    explicit UserStore(Database &db);

    // A new account with a free subscription and a welcome notification, or
    // nothing when the address is taken (in any letter case).
    std::optional<User> create(const UserDetails &details, const std::string &passwordHash);

    struct Credentials {
        User user;
        std::string passwordHash;
    };
    std::optional<Credentials> credentials(const std::string &email);

    // False when no account has this address.
    bool setPasswordHash(const std::string &email, const std::string &passwordHash);

    // The account as it now is, or nothing when another account has the
    // address. Throws for an id without an account, which no session names.
    std::optional<User> update(std::int64_t id, const UserDetails &details);

private:
    Database &m_db;
};
