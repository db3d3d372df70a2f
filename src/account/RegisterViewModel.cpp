// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/RegisterViewModel.h"

RegisterViewModel::RegisterViewModel(QObject *parent)
    : PersonalDetailsModel(parent)
{
}

void RegisterViewModel::setReferralcode(const QString &code)
{
    m_referralcode = code;
    Q_EMIT inputChanged();
}

void RegisterViewModel::setPasswordtxt(const QString &password)
{
    m_passwordtxt = password;
    Q_EMIT inputChanged();
}

void RegisterViewModel::registerAccount()
{
    if (!beginRequest(m_passwordtxt.isEmpty()))
        return;
    sendRequest(BackendScript::Register,
                { { "fullname", fullName() },
                  { "emailaddress", trimmedEmail() },
                  { "phonenumber", placeholderPhoneNumber() },
                  { "dateofbirth", birthDateText() },
                  { "password", m_passwordtxt },
                  { "gender", genderCode() },
                  { "referral_code", m_referralcode } });
}
