// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/ProfileViewModel.h"

#include "account/GenderCode.h"
#include "service/BackendQuery.h"
#include "service/HttpGet.h"

#include <QCoreApplication>

namespace
{
const QString notProvided = QStringLiteral("Not Provided");
} // namespace

ProfileViewModel::ProfileViewModel(QObject *parent)
    : AccountScreenModel(parent)
    , m_profileSub(this)
    , m_profileMed(this)
{
    connect(&m_profileSub, &ListFetcher::itemsChanged, this, &ProfileViewModel::subscriptionChanged);
    connect(&m_profileMed, &ListFetcher::itemsChanged, this, &ProfileViewModel::medicalChanged);
}

QString ProfileViewModel::genderLine() const
{
    return QStringLiteral("Gender : ") + GenderCode::labelFor(m_user.gender);
}

// A guest, or a user the backend lists no subscription for, reads as not subscribed.
QString ProfileViewModel::sType() const
{
    return m_profileSub.items().isEmpty() ? QStringLiteral("Guest User") : m_profileSub.items().first().type;
}

QString ProfileViewModel::sCategory() const
{
    return m_profileSub.items().isEmpty() ? QStringLiteral("None") : m_profileSub.items().first().package;
}

QString ProfileViewModel::sStatus() const
{
    return m_profileSub.items().isEmpty() ? QStringLiteral("Account Not Active") : m_profileSub.items().first().status;
}

QString ProfileViewModel::conditionstatus() const
{
    return m_profileMed.items().isEmpty() ? notProvided : m_profileMed.items().first().conditionstatus;
}

QString ProfileViewModel::conditionname() const
{
    return m_profileMed.items().isEmpty() ? notProvided : m_profileMed.items().first().conditionname;
}

void ProfileViewModel::setFeedbacks(const QString &text)
{
    if (m_feedbacks == text)
        return;
    m_feedbacks = text;
    Q_EMIT feedbacksChanged();
}

void ProfileViewModel::setShowingAlert1(bool showing)
{
    if (m_showingAlert1 == showing)
        return;
    m_showingAlert1 = showing;
    Q_EMIT showingAlert1Changed();
}

void ProfileViewModel::refresh()
{
    const QList<User> users = m_loginProfileTable.readAll();
    m_user = users.isEmpty() ? User() : users.first();
    m_user_id = users.isEmpty() ? QStringLiteral("0") : m_user.userid;
    Q_EMIT userChanged();
    if (users.isEmpty())
        return;
    m_profileSub.fetch();
    m_profileMed.fetch();
}

void ProfileViewModel::sendFeedback()
{
    if (m_feedbacks.isEmpty())
        return showAlert(QStringLiteral("Please fill in your feedback"));
    setLoading(true);
    sendRequest(BackendScript::Feedbacks, { { "userid", m_user.userid }, { "feedback", m_feedbacks } });
}

void ProfileViewModel::copyRecord(const LoginModel &)
{
    // Feedback the backend took is done with; the box is ready for more.
    if (requestAccepted())
        setFeedbacks(QString());
}

void ProfileViewModel::logout()
{
    setShowingAlert1(true);
}

void ProfileViewModel::confirmLogout()
{
    setShowingAlert1(false);
    // A guest has no session to end.
    if (m_user.userid.isEmpty())
        return;
    // The backend is told in passing; the device forgets the user whatever it says.
    const QUrl url = requestUrl(backendRequestText(BackendScript::Logout, { { "userid", m_user.userid } }));
    if (!url.isEmpty())
        httpGet(url, QCoreApplication::instance(), [](const HttpAnswer &) {});
    m_loginProfileTable.deleteAll();
    m_user = User();
    m_user_id = QStringLiteral("0");
    Q_EMIT userChanged();
    Q_EMIT loggedOut();
}
