// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/PersonalDetailsModel.h"

// The registration screen: who the user is, sent to the backend, which
// answers with a message to read; nothing is kept on the device.
class RegisterViewModel : public PersonalDetailsModel
{
    Q_OBJECT
    Q_PROPERTY(QString referralcode READ referralcode WRITE setReferralcode NOTIFY inputChanged)
    Q_PROPERTY(QString passwordtxt READ passwordtxt WRITE setPasswordtxt NOTIFY inputChanged)

public:
    explicit RegisterViewModel(QObject *parent = nullptr);

    QString referralcode() const { return m_referralcode; }
    void setReferralcode(const QString &code);
    QString passwordtxt() const { return m_passwordtxt; }
    void setPasswordtxt(const QString &password);

    Q_INVOKABLE void registerAccount();

private:
    QString m_referralcode;
    QString m_passwordtxt;
};
