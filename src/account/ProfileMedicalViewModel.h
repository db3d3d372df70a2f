// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/AccountScreenModel.h"
#include "service/ProfileMedicalDetailsUrl.h"
#include "storage/SQliteLogin.h"

#include <QStringList>

// The medical profile: a condition, an emergency contact, body measures and
// smoking habits, read back from the backend when the screen opens and sent
// to it whole on save.
class ProfileMedicalViewModel : public AccountScreenModel
{
    Q_OBJECT
    Q_PROPERTY(QString emergencycontact READ emergencycontact WRITE setEmergencycontact NOTIFY inputChanged)
    Q_PROPERTY(QString weight READ weight WRITE setWeight NOTIFY inputChanged)
    Q_PROPERTY(QString height READ height WRITE setHeight NOTIFY inputChanged)
    // The smoking category as the backend last held it; never sent back.
    Q_PROPERTY(QString val_smockstatus READ valSmockstatus NOTIFY inputChanged)
    Q_PROPERTY(QString mobilenumber READ mobilenumber WRITE setMobilenumber NOTIFY inputChanged)
    Q_PROPERTY(QString relationship READ relationship WRITE setRelationship NOTIFY inputChanged)
    Q_PROPERTY(QString condition READ condition WRITE setCondition NOTIFY inputChanged)
    Q_PROPERTY(QString conditionname READ conditionname WRITE setConditionname NOTIFY inputChanged)
    Q_PROPERTY(QString smokingstatus READ smokingstatus WRITE setSmokingstatus NOTIFY inputChanged)
    Q_PROPERTY(QString moredetails READ moredetails WRITE setMoredetails NOTIFY inputChanged)
    Q_PROPERTY(ProfileMedicalDetailsUrl *profileMedD READ profileMedD CONSTANT)
    Q_PROPERTY(QStringList options READ options CONSTANT)
    Q_PROPERTY(QStringList optionsq READ optionsq CONSTANT)
    Q_PROPERTY(QStringList option READ option CONSTANT)
    Q_PROPERTY(QStringList smokingCategories READ smokingCategories CONSTANT)
    Q_PROPERTY(bool isPickerPresented READ isPickerPresented WRITE setPickerPresented NOTIFY pickersChanged)
    Q_PROPERTY(bool isPickerPresented1 READ isPickerPresented1 WRITE setPickerPresented1 NOTIFY pickersChanged)
    Q_PROPERTY(bool isPickerPresented2 READ isPickerPresented2 WRITE setPickerPresented2 NOTIFY pickersChanged)
    Q_PROPERTY(bool isHidden READ isHidden NOTIFY inputChanged)
    Q_PROPERTY(QString selectedCategory READ selectedCategory WRITE setSelectedCategory NOTIFY inputChanged)

public:
    explicit ProfileMedicalViewModel(QObject *parent = nullptr);

    QString emergencycontact() const { return m_emergencycontact; }
    void setEmergencycontact(const QString &value);
    QString weight() const { return m_weight; }
    void setWeight(const QString &value);
    QString height() const { return m_height; }
    void setHeight(const QString &value);
    QString valSmockstatus() const { return m_valSmockstatus; }
    QString mobilenumber() const { return m_mobilenumber; }
    void setMobilenumber(const QString &value);
    QString relationship() const { return m_relationship; }
    void setRelationship(const QString &value);
    QString condition() const { return m_condition; }
    void setCondition(const QString &value);
    QString conditionname() const { return m_conditionname; }
    void setConditionname(const QString &value);
    QString smokingstatus() const { return m_smokingstatus; }
    // Choosing "Non-Smoker" also takes the category back to it: a hidden
    // category must not be sent as some earlier choice.
    void setSmokingstatus(const QString &value);
    QString moredetails() const { return m_moredetails; }
    void setMoredetails(const QString &value);
    QString selectedCategory() const { return m_selectedCategory; }
    void setSelectedCategory(const QString &value);
    bool isHidden() const;

    ProfileMedicalDetailsUrl *profileMedD() const { return m_profileMedD; }
    // Each list opens with "Select", the value of a picker left untouched,
    // so that its wheel shows what will be sent.
    static QStringList options();
    static QStringList optionsq();
    static QStringList option();
    static QStringList smokingCategories();

    bool isPickerPresented() const { return m_isPickerPresented; }
    void setPickerPresented(bool presented);
    bool isPickerPresented1() const { return m_isPickerPresented1; }
    void setPickerPresented1(bool presented);
    bool isPickerPresented2() const { return m_isPickerPresented2; }
    void setPickerPresented2(bool presented);

    Q_INVOKABLE void save();

Q_SIGNALS:
    void inputChanged();
    void pickersChanged();

protected:
    std::optional<QString> decodedAnswerAlert(int records) const override;

private:
    void setText(QString &field, const QString &value);
    void setFlag(bool &flag, bool value);
    void fillFromStoredDetails();

    QString m_emergencycontact;
    QString m_weight;
    QString m_height;
    QString m_valSmockstatus;
    QString m_mobilenumber;
    QString m_relationship;
    QString m_condition;
    QString m_conditionname;
    QString m_smokingstatus;
    QString m_moredetails;
    ProfileMedicalDetailsUrl *m_profileMedD;
    bool m_isPickerPresented = false;
    bool m_isPickerPresented1 = false;
    bool m_isPickerPresented2 = false;
    SQliteLogin m_loginProfileTable;
    QString m_selectedCategory;
};
