// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/EmailScreenModel.h"
#include "records/User.h"
#include "storage/SQliteLogin.h"

// The login screen: the address and password sent to the backend and, once
// the user has read its answer, the session kept on the device.
class LoginViewModel : public EmailScreenModel
{
    Q_OBJECT
    Q_PROPERTY(QString passwordtxt READ passwordtxt WRITE setPasswordtxt NOTIFY passwordtxtChanged)
    Q_PROPERTY(QString date_userid READ dateUserid NOTIFY responseChanged)
    Q_PROPERTY(QString date_fullname READ dateFullname NOTIFY responseChanged)
    Q_PROPERTY(QString date_phonenumber READ datePhonenumber NOTIFY responseChanged)
    Q_PROPERTY(QString date_emailaddress READ dateEmailaddress NOTIFY responseChanged)
    Q_PROPERTY(QString date_dateofbirth READ dateDateofbirth NOTIFY responseChanged)
    Q_PROPERTY(QString date_gender READ dateGender NOTIFY responseChanged)
    Q_PROPERTY(QString date_registerdate READ dateRegisterdate NOTIFY responseChanged)

public:
    explicit LoginViewModel(QObject *parent = nullptr);

    QString passwordtxt() const { return m_passwordtxt; }
    void setPasswordtxt(const QString &password);

    QString dateUserid() const { return m_user.userid; }
    QString dateFullname() const { return m_user.fullname; }
    QString datePhonenumber() const { return m_user.phonenumber; }
    QString dateEmailaddress() const { return m_user.emailaddress; }
    QString dateDateofbirth() const { return m_user.dateofbirth; }
    QString dateGender() const { return m_user.gender; }
    QString dateRegisterdate() const { return m_user.registerdate; }

    Q_INVOKABLE void login();

Q_SIGNALS:
    void passwordtxtChanged();
    // The user is signed in and should now see the home shell.
    void sessionStarted();

protected:
    void copyRecord(const LoginModel &record) override;
    void alertDismissed() override;

private:
    QString m_passwordtxt;
    SQliteLogin m_loginTable;
    User m_user;
};
