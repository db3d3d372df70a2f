// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/AccountScreenModel.h"
#include "service/ProfileMedicalUrl.h"
#include "service/ProfileSubscriptiontUrl.h"
#include "storage/SQliteLogin.h"

// The profile overview: the stored user, the subscription and medical status
// the backend keeps for them, a feedback box and the way out of the account.
class ProfileViewModel : public AccountScreenModel
{
    Q_OBJECT
    Q_PROPERTY(QString fullname_val READ fullnameVal NOTIFY userChanged)
    Q_PROPERTY(QString emailaddress_val READ emailaddressVal NOTIFY userChanged)
    Q_PROPERTY(QString gender_val READ genderVal NOTIFY userChanged)
    Q_PROPERTY(QString dateofbirth_val READ dateofbirthVal NOTIFY userChanged)
    Q_PROPERTY(QString user_id READ userId NOTIFY userChanged)
    Q_PROPERTY(QString useriddata READ useriddata NOTIFY userChanged)
    // "Gender : " and the label the stored code stands for.
    Q_PROPERTY(QString genderLine READ genderLine NOTIFY userChanged)
    Q_PROPERTY(QString s_type READ sType NOTIFY subscriptionChanged)
    Q_PROPERTY(QString s_category READ sCategory NOTIFY subscriptionChanged)
    Q_PROPERTY(QString s_status READ sStatus NOTIFY subscriptionChanged)
    Q_PROPERTY(QString conditionstatus READ conditionstatus NOTIFY medicalChanged)
    Q_PROPERTY(QString conditionname READ conditionname NOTIFY medicalChanged)
    Q_PROPERTY(QString feedbacks READ feedbacks WRITE setFeedbacks NOTIFY feedbacksChanged)
    // The logout confirmation, apart from the alert that answers feedback.
    Q_PROPERTY(bool showingAlert1 READ showingAlert1 WRITE setShowingAlert1 NOTIFY showingAlert1Changed)

public:
    explicit ProfileViewModel(QObject *parent = nullptr);

    QString fullnameVal() const { return m_user.fullname; }
    QString emailaddressVal() const { return m_user.emailaddress; }
    QString genderVal() const { return m_user.gender; }
    QString dateofbirthVal() const { return m_user.dateofbirth; }
    QString userId() const { return m_user_id; }
    QString useriddata() const { return m_user.userid; }
    QString genderLine() const;
    QString sType() const;
    QString sCategory() const;
    QString sStatus() const;
    QString conditionstatus() const;
    QString conditionname() const;
    QString feedbacks() const { return m_feedbacks; }
    void setFeedbacks(const QString &text);
    bool showingAlert1() const { return m_showingAlert1; }
    void setShowingAlert1(bool showing);

    // On every appearance: the stored user, then what the backend has for them.
    Q_INVOKABLE void refresh();
    Q_INVOKABLE void sendFeedback();
    // "Logout" asks first; "OK" ends the session.
    Q_INVOKABLE void logout();
    Q_INVOKABLE void confirmLogout();

Q_SIGNALS:
    void userChanged();
    void subscriptionChanged();
    void medicalChanged();
    void feedbacksChanged();
    void showingAlert1Changed();
    // The device forgot the user; the window should offer a fresh login.
    void loggedOut();

protected:
    void copyRecord(const LoginModel &record) override;

private:
    SQliteLogin m_loginProfileTable;
    User m_user;
    QString m_user_id = QStringLiteral("0");
    ProfileSubscriptiontUrl m_profileSub;
    ProfileMedicalUrl m_profileMed;
    QString m_feedbacks;
    bool m_showingAlert1 = false;
};
