// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/EmailScreenModel.h"

#include "account/EmailPattern.h"

EmailScreenModel::EmailScreenModel(QObject *parent)
    : AccountScreenModel(parent)
{
}

void EmailScreenModel::setEmailAddress(const QString &address)
{
    if (m_emailAddress == address)
        return;
    m_emailAddress = address;
    m_isValidEmail = EmailPattern::accepts(address);
    Q_EMIT emailAddressChanged();
}

QString EmailScreenModel::emailRegex()
{
    return EmailPattern::pattern();
}

bool EmailScreenModel::beginRequest(bool otherInputMissing)
{
    setLoading(true);
    QString refusal;
    if (otherInputMissing || trimmedEmail().isEmpty())
        refusal = QStringLiteral("Email address not added");
    else if (!m_isValidEmail)
        refusal = QStringLiteral("Enter valid email address");
    if (refusal.isEmpty())
        return true;
    showAlert(refusal);
    setLoading(false);
    return false;
}
