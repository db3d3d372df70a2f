// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/AccountScreenModel.h"

// An account screen that sends an e-mail address and refuses to send one
// that is missing or does not look like an address.
class EmailScreenModel : public AccountScreenModel
{
    Q_OBJECT
    Q_PROPERTY(QString emailAddress READ emailAddress WRITE setEmailAddress NOTIFY emailAddressChanged)
    Q_PROPERTY(QString emailRegex READ emailRegex CONSTANT)
    Q_PROPERTY(bool isValidEmail READ isValidEmail NOTIFY emailAddressChanged)

public:
    QString emailAddress() const { return m_emailAddress; }
    void setEmailAddress(const QString &address);
    static QString emailRegex();
    bool isValidEmail() const { return m_isValidEmail; }

Q_SIGNALS:
    void emailAddressChanged();

protected:
    explicit EmailScreenModel(QObject *parent);

    // The address as it is checked and sent: blanks typed around it are no part of it.
    QString trimmedEmail() const { return m_emailAddress.trimmed(); }
    // Starts a request. False when it must not be sent; the alert then says
    // why and the progress indicator has already gone.
    bool beginRequest(bool otherInputMissing);

private:
    QString m_emailAddress;
    bool m_isValidEmail = false;
};
