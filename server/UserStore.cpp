// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/UserStore.h"

#include "server/Database.h"
#include "server/UtcTime.h"

#include <stdexcept>

namespace
{
constexpr const char *userColumns = "SELECT id, fullname, phone, email, dateofbirth, gender, registered, password_hash FROM users ";

User readUser(const Statement &row)
{
    return User { row.integer(0), UserDetails { row.text(1), row.text(2), row.text(3), row.text(4), row.text(5) }, row.text(6) };
}

bool emailTaken(Database::Session &session, const std::string &email, std::int64_t exceptId)
{
    Statement query = session.prepare("SELECT 1 FROM users WHERE email = ?1 AND id <> ?2");
    query.bindAll(email, exceptId);
    return query.nextRow();
}

void addStarterRows(Database::Session &session, std::int64_t userId, const std::string &now)
{
    Statement subscription = session.prepare("INSERT INTO subscriptions (user_id, type, package, status) VALUES (?1, ?2, ?3, ?4)");
    subscription.bindAll(userId, "Individual", "Freemium", "Active").run();
    Statement welcome = session.prepare("INSERT INTO notifications (user_id, topic, message, posted) VALUES (?1, ?2, ?3, ?4)");
    welcome
        .bindAll(userId, "Welcome to Tarnelo",
                 "Your account is ready. Check the air around you, and keep your medical profile up to date so that the advice fits you.", now)
        .run();
}
} // namespace

UserStore::UserStore(Database &db)
    : m_db(db)
{
}

std::optional<User> UserStore::create(const UserDetails &details, const std::string &passwordHash)
{
    Database::Session session(m_db);
    if (emailTaken(session, details.email, 0))
        return std::nullopt;
    const std::string now = utcTimestampNow();
    Transaction transaction(session);
    Statement insert = session.prepare("INSERT INTO users (fullname, phone, email, dateofbirth, gender, password_hash, registered) "
                                       "VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7)");
    insert.bindAll(details.fullname, details.phone, details.email, details.dateOfBirth, details.gender, passwordHash, now).run();
    const User user { session.lastInsertId(), details, now };
    addStarterRows(session, user.id, now);
    transaction.commit();
    return user;
}

std::optional<UserStore::Credentials> UserStore::credentials(const std::string &email)
{
    Database::Session session(m_db);
    Statement query = session.prepare((std::string(userColumns) + "WHERE email = ?1").c_str());
    query.bindAll(email);
    return query.nextRow() ? std::optional<Credentials>(Credentials { readUser(query), query.text(7) }) : std::nullopt;
}

bool UserStore::setPasswordHash(const std::string &email, const std::string &passwordHash)
{
    Database::Session session(m_db);
    session.prepare("UPDATE users SET password_hash = ?1 WHERE email = ?2").bindAll(passwordHash, email).run();
    return session.changes() > 0;
}

std::optional<User> UserStore::update(std::int64_t id, const UserDetails &details)
{
    Database::Session session(m_db);
    if (emailTaken(session, details.email, id))
        return std::nullopt;
    session.prepare("UPDATE users SET fullname = ?1, phone = ?2, email = ?3, dateofbirth = ?4, gender = ?5 WHERE id = ?6")
        .bindAll(details.fullname, details.phone, details.email, details.dateOfBirth, details.gender, id)
        .run();
    Statement query = session.prepare((std::string(userColumns) + "WHERE id = ?1").c_str());
    if (!query.bindAll(id).nextRow())
        throw std::runtime_error("no account has id " + std::to_string(id));
    return readUser(query);
}
