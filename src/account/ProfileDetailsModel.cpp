// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/ProfileDetailsModel.h"

#include "account/GenderCode.h"

#include <utility>

ProfileDetailsModel::ProfileDetailsModel(QObject *parent)
    : PersonalDetailsModel(parent)
{
    // Filled before the screen binds to it, so that the date wheels start on
    // the stored day instead of turning to it from today.
    load();
}

void ProfileDetailsModel::load()
{
    const QList<User> users = m_loginProfileTable.readAll();
    if (users.isEmpty())
        return;
    const User &user = users.first();
    fill(user.fullname, user.phonenumber, user.emailaddress, QDate::fromString(user.dateofbirth, QStringLiteral("yyyy-MM-dd")),
         GenderCode::labelFor(user.gender));
}

void ProfileDetailsModel::update()
{
    if (!beginRequest(false))
        return;
    const QList<User> users = m_loginProfileTable.readAll();
    sendRequest(BackendScript::UpdateUser,
                { { "fullname", fullName() },
                  { "emailaddress", trimmedEmail() },
                  { "phonenumber", placeholderPhoneNumber() },
                  { "dateofbirth", birthDateText() },
                  { "gender", genderCode() },
                  { "userid", users.isEmpty() ? QString() : users.first().userid } });
}

void ProfileDetailsModel::copyRecord(const LoginModel &)
{
    m_answerShown = true;
}

void ProfileDetailsModel::alertDismissed()
{
    // Only what the backend accepted may reach the device, or the two would
    // disagree about who the user is.
    const bool answered = std::exchange(m_answerShown, false);
    if (!answered || !requestAccepted())
        return;
    m_loginProfileTable.update(fullName(), phoneNumber(), trimmedEmail(), birthDateText(), genderCode());
    Q_EMIT userUpdated();
}
