// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/PersonalDetailsModel.h"

#include "account/GenderCode.h"

#include <algorithm>

namespace
{
const QString noGender = QStringLiteral("Select Gender");
} // namespace

PersonalDetailsModel::PersonalDetailsModel(QObject *parent)
    : AccountScreenModel(parent)
    , m_selectedOption(noGender)
{
}

void PersonalDetailsModel::setFullName(const QString &name)
{
    m_fullName = name;
    Q_EMIT inputChanged();
}

void PersonalDetailsModel::setEmailAddress(const QString &address)
{
    m_emailAddress = address;
    Q_EMIT inputChanged();
}

void PersonalDetailsModel::setDateOfBirth(int year, int month, int day)
{
    const QDate firstOfMonth(year, month, 1);
    if (!firstOfMonth.isValid())
        return;
    const QDate date(year, month, std::min(day, firstOfMonth.daysInMonth()));
    m_dateOfBirth = std::min(date, QDate::currentDate());
    Q_EMIT inputChanged();
}

QStringList PersonalDetailsModel::options()
{
    return GenderCode::labels();
}

void PersonalDetailsModel::setPickerPresented(bool presented)
{
    if (m_isPickerPresented == presented)
        return;
    m_isPickerPresented = presented;
    Q_EMIT isPickerPresentedChanged();
}

void PersonalDetailsModel::chooseOption(const QString &option)
{
    if (options().contains(option)) {
        m_selectedOption = option;
        Q_EMIT inputChanged();
    }
    setPickerPresented(false);
}

QString PersonalDetailsModel::placeholderPhoneNumber()
{
    return QStringLiteral("1234567890");
}

bool PersonalDetailsModel::beginRequest(bool otherInputMissing)
{
    setLoading(true);
    QString refusal;
    if (m_fullName.isEmpty() || trimmedEmail().isEmpty() || otherInputMissing)
        refusal = QStringLiteral("Fullname, Email and Password Required");
    else if (m_selectedOption == noGender)
        refusal = QStringLiteral("Please select your gender");
    if (refusal.isEmpty())
        return true;
    showAlert(refusal);
    setLoading(false);
    return false;
}

QString PersonalDetailsModel::genderCode() const
{
    return GenderCode::codeFor(m_selectedOption);
}

void PersonalDetailsModel::fill(const QString &fullName, const QString &phoneNumber, const QString &emailAddress, const QDate &dateOfBirth,
                                const QString &genderLabel)
{
    m_fullName = fullName;
    m_phoneNumber = phoneNumber;
    m_emailAddress = emailAddress;
    if (dateOfBirth.isValid())
        m_dateOfBirth = std::min(dateOfBirth, QDate::currentDate());
    m_selectedOption = genderLabel;
    Q_EMIT inputChanged();
}
