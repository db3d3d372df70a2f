// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ReplyGuard.h"

#include <QNetworkReply>
#include <QTimer>

namespace
{
bool sameOrigin(const QUrl &a, const QUrl &b)
{
    const auto defaultPort = [](const QUrl &url) { return url.scheme() == QLatin1String("https") ? 443 : 80; };
    return a.scheme() == b.scheme() && a.host() == b.host() && a.port(defaultPort(a)) == b.port(defaultPort(b));
}
} // namespace

ReplyGuard::ReplyGuard(QNetworkReply *reply, qint64 bodyLimit, std::chrono::seconds deadline)
    : QObject(reply)
    , m_reply(reply)
    , m_bodyLimit(bodyLimit)
{
    connect(reply, &QNetworkReply::redirected, this, &ReplyGuard::checkRedirect);
    connect(reply, &QNetworkReply::metaDataChanged, this, [this] { checkSize(m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong()); });
    connect(reply, &QNetworkReply::downloadProgress, this, [this](qint64 received, qint64) { checkSize(received); });
    QTimer::singleShot(deadline, Qt::PreciseTimer, this,
                       [this, deadline] { abortFor(QStringLiteral("No complete answer within %1 s").arg(deadline.count())); });
}

void ReplyGuard::checkRedirect(const QUrl &target)
{
    if (sameOrigin(target, m_reply->request().url())) {
        Q_EMIT m_reply->redirectAllowed();
        return;
    }
    // The target's query is left out of the text: a server may have echoed
    // the password into it, and the text is printed.
    abortFor(QStringLiteral("Redirect to another origin refused: ") + target.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment));
}

void ReplyGuard::checkSize(qint64 bytes)
{
    if (bytes > m_bodyLimit)
        abortFor(QStringLiteral("Answer larger than %1 bytes").arg(m_bodyLimit));
}

void ReplyGuard::abortFor(const QString &breach)
{
    if (!m_breach.isNull() || m_reply->isFinished())
        return;
    m_breach = breach;
    m_reply->abort();
}
