// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/AccountScreenModel.h"

#include <QDate>
#include <QStringList>

// The registration screen: who the user is, sent to the backend, which
// answers with a message to read; nothing is kept on the device.
class RegisterViewModel : public AccountScreenModel
{
    Q_OBJECT
    Q_PROPERTY(QString fullName READ fullName WRITE setFullName NOTIFY inputChanged)
    // Kept for the backend's sake but never shown: the form asks for no phone
    // number and the request always carries the same placeholder.
    Q_PROPERTY(QString phoneNumber MEMBER m_phoneNumber NOTIFY inputChanged)
    Q_PROPERTY(QString emailAddress READ emailAddress WRITE setEmailAddress NOTIFY inputChanged)
    Q_PROPERTY(QDate dateOfBirth READ dateOfBirth NOTIFY inputChanged)
    Q_PROPERTY(int birthDay READ birthDay NOTIFY inputChanged)
    Q_PROPERTY(int birthMonth READ birthMonth NOTIFY inputChanged)
    Q_PROPERTY(int birthYear READ birthYear NOTIFY inputChanged)
    Q_PROPERTY(QString selectedOption READ selectedOption NOTIFY inputChanged)
    Q_PROPERTY(QString referralcode READ referralcode WRITE setReferralcode NOTIFY inputChanged)
    Q_PROPERTY(QString passwordtxt READ passwordtxt WRITE setPasswordtxt NOTIFY inputChanged)
    Q_PROPERTY(QStringList options READ options CONSTANT)
    Q_PROPERTY(bool isPickerPresented READ isPickerPresented WRITE setPickerPresented NOTIFY isPickerPresentedChanged)

public:
    explicit RegisterViewModel(QObject *parent = nullptr);

    QString fullName() const { return m_fullName; }
    void setFullName(const QString &name);
    QString emailAddress() const { return m_emailAddress; }
    void setEmailAddress(const QString &address);
    QDate dateOfBirth() const { return m_dateOfBirth; }
    int birthDay() const { return m_dateOfBirth.day(); }
    int birthMonth() const { return m_dateOfBirth.month(); }
    int birthYear() const { return m_dateOfBirth.year(); }
    // A day the month does not have becomes its last; a day after today becomes today.
    Q_INVOKABLE void setDateOfBirth(int year, int month, int day);
    QString selectedOption() const { return m_selectedOption; }
    QString referralcode() const { return m_referralcode; }
    void setReferralcode(const QString &code);
    QString passwordtxt() const { return m_passwordtxt; }
    void setPasswordtxt(const QString &password);
    static QStringList options();
    bool isPickerPresented() const { return m_isPickerPresented; }
    void setPickerPresented(bool presented);

    // The gender picker's choice; it also closes the picker.
    Q_INVOKABLE void chooseOption(const QString &option);
    Q_INVOKABLE void registerAccount();

Q_SIGNALS:
    void inputChanged();
    void isPickerPresentedChanged();

private:
    void refuse(const QString &message);

    QString m_fullName;
    QString m_phoneNumber;
    QString m_emailAddress;
    QDate m_dateOfBirth = QDate::currentDate();
    QString m_selectedOption;
    QString m_referralcode;
    QString m_passwordtxt;
    bool m_isPickerPresented = false;
};
