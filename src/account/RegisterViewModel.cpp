// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/RegisterViewModel.h"

#include <algorithm>

namespace
{
const QString noGender = QStringLiteral("Select Gender");
// The screen never asks for a phone number; the backend insists on one.
const QString placeholderPhoneNumber = QStringLiteral("1234567890");
} // namespace

RegisterViewModel::RegisterViewModel(QObject *parent)
    : AccountScreenModel(parent)
    , m_selectedOption(noGender)
{
}

void RegisterViewModel::setFullName(const QString &name)
{
    m_fullName = name;
    Q_EMIT inputChanged();
}

void RegisterViewModel::setEmailAddress(const QString &address)
{
    m_emailAddress = address;
    Q_EMIT inputChanged();
}

void RegisterViewModel::setDateOfBirth(int year, int month, int day)
{
    const QDate firstOfMonth(year, month, 1);
    if (!firstOfMonth.isValid())
        return;
    const QDate date(year, month, std::min(day, firstOfMonth.daysInMonth()));
    m_dateOfBirth = std::min(date, QDate::currentDate());
    Q_EMIT inputChanged();
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

QStringList RegisterViewModel::options()
{
    return { QStringLiteral("Male"), QStringLiteral("Female"), QStringLiteral("Others") };
}

void RegisterViewModel::setPickerPresented(bool presented)
{
    if (m_isPickerPresented == presented)
        return;
    m_isPickerPresented = presented;
    Q_EMIT isPickerPresentedChanged();
}

void RegisterViewModel::chooseOption(const QString &option)
{
    if (options().contains(option)) {
        m_selectedOption = option;
        Q_EMIT inputChanged();
    }
    setPickerPresented(false);
}

void RegisterViewModel::registerAccount()
{
    setLoading(true);
    const QString email = m_emailAddress.trimmed();
    if (m_fullName.isEmpty() || email.isEmpty() || m_passwordtxt.isEmpty())
        return refuse(QStringLiteral("Fullname, Email and Password Required"));
    if (m_selectedOption == noGender)
        return refuse(QStringLiteral("Please select your gender"));
    // The backend knows the genders by their position in the picker, from 1.
    const QString genderCode = QString::number(options().indexOf(m_selectedOption) + 1);
    sendRequest(BackendScript::Register,
                { { "fullname", m_fullName },
                  { "emailaddress", email },
                  { "phonenumber", placeholderPhoneNumber },
                  { "dateofbirth", m_dateOfBirth.toString(QStringLiteral("yyyy-MM-dd")) },
                  { "password", m_passwordtxt },
                  { "gender", genderCode },
                  { "referral_code", m_referralcode } });
}

void RegisterViewModel::refuse(const QString &message)
{
    showAlert(message);
    setLoading(false);
}
