// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/LoginViewModel.h"

LoginViewModel::LoginViewModel(QObject *parent)
    : EmailScreenModel(parent)
{
}

void LoginViewModel::setPasswordtxt(const QString &password)
{
    if (m_passwordtxt == password)
        return;
    m_passwordtxt = password;
    Q_EMIT passwordtxtChanged();
}

void LoginViewModel::login()
{
    if (!beginRequest(m_passwordtxt.isEmpty()))
        return;
    sendRequest(BackendScript::Login, { { "username", trimmedEmail() }, { "passcode", m_passwordtxt } });
}

void LoginViewModel::copyRecord(const LoginModel &record)
{
    m_user = User { record.userid, record.fullname, record.phonenumber, record.emailaddress, record.dateofbirth, record.gender, record.registerdate };
}

void LoginViewModel::alertDismissed()
{
    // The alert that told the user the login went through is what they
    // confirm before the session starts.
    if (!requestAccepted())
        return;
    m_loginTable.insert(m_user.userid, m_user.fullname, m_user.phonenumber, m_user.emailaddress, m_user.dateofbirth, m_user.gender, m_user.registerdate);
    Q_EMIT sessionStarted();
}
