// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/AccountScreenModel.h"

#include <QDate>
#include <QStringList>

// The form that says who the user is — name, address, birth date and gender
// from a picker — shared by registration and the personal bio, which refuse
// the same incomplete input with the same words.
class PersonalDetailsModel : public AccountScreenModel
{
    Q_OBJECT
    Q_PROPERTY(QString fullName READ fullName WRITE setFullName NOTIFY inputChanged)
    // Never asked for: the backend is always sent the same placeholder, and
    // the device keeps whatever number it already had.
    Q_PROPERTY(QString phoneNumber READ phoneNumber NOTIFY inputChanged)
    Q_PROPERTY(QString emailAddress READ emailAddress WRITE setEmailAddress NOTIFY inputChanged)
    Q_PROPERTY(QDate dateOfBirth READ dateOfBirth NOTIFY inputChanged)
    Q_PROPERTY(int birthDay READ birthDay NOTIFY inputChanged)
    Q_PROPERTY(int birthMonth READ birthMonth NOTIFY inputChanged)
    Q_PROPERTY(int birthYear READ birthYear NOTIFY inputChanged)
    Q_PROPERTY(QString selectedOption READ selectedOption NOTIFY inputChanged)
    Q_PROPERTY(QStringList options READ options CONSTANT)
    Q_PROPERTY(bool isPickerPresented READ isPickerPresented WRITE setPickerPresented NOTIFY isPickerPresentedChanged)

public:
    QString fullName() const { return m_fullName; }
    void setFullName(const QString &name);
    QString phoneNumber() const { return m_phoneNumber; }
    QString emailAddress() const { return m_emailAddress; }
    void setEmailAddress(const QString &address);
    QDate dateOfBirth() const { return m_dateOfBirth; }
    int birthDay() const { return m_dateOfBirth.day(); }
    int birthMonth() const { return m_dateOfBirth.month(); }
    int birthYear() const { return m_dateOfBirth.year(); }
    // A day the month does not have becomes its last; a day after today becomes today.
    Q_INVOKABLE void setDateOfBirth(int year, int month, int day);
    QString selectedOption() const { return m_selectedOption; }
    static QStringList options();
    bool isPickerPresented() const { return m_isPickerPresented; }
    void setPickerPresented(bool presented);

    // The gender picker's choice; it also closes the picker.
    Q_INVOKABLE void chooseOption(const QString &option);

    // What the backend is sent instead of a phone number.
    static QString placeholderPhoneNumber();

Q_SIGNALS:
    void inputChanged();
    void isPickerPresentedChanged();

protected:
    explicit PersonalDetailsModel(QObject *parent);

    // Starts a request. False when it must not be sent; the alert then says
    // why and the progress indicator has already gone.
    bool beginRequest(bool otherInputMissing);
    // The address as it is sent: blanks typed around it are no part of it.
    QString trimmedEmail() const { return m_emailAddress.trimmed(); }
    QString birthDateText() const { return m_dateOfBirth.toString(QStringLiteral("yyyy-MM-dd")); }
    QString genderCode() const;
    // Fills the form from what is already known about the user.
    void fill(const QString &fullName, const QString &phoneNumber, const QString &emailAddress, const QDate &dateOfBirth, const QString &genderLabel);

private:
    QString m_fullName;
    QString m_phoneNumber;
    QString m_emailAddress;
    QDate m_dateOfBirth = QDate::currentDate();
    QString m_selectedOption;
    bool m_isPickerPresented = false;
};
