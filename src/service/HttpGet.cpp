// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/HttpGet.h"

#include "service/NetworkSession.h"
#include "service/ReplyGuard.h"
#include "service/ServiceConfig.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

namespace
{
// Qt reports an HTTP error status as a reply error too; only the failures
// below the content range mean no answer arrived (refused, timed out, TLS...).
bool arrived(const QNetworkReply &reply)
{
    const bool hasStatus = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    return hasStatus && (reply.error() == QNetworkReply::NoError || reply.error() >= QNetworkReply::ContentAccessDenied);
}
} // namespace

void httpGet(const QUrl &url, const QObject *context, std::function<void(const HttpAnswer &)> done, qint64 bodyLimit)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    QNetworkReply *reply = sharedNetworkSession().get(request);
    const auto *guard = new ReplyGuard(reply, bodyLimit, ServiceConfig::requestDeadline());
    QObject::connect(reply, &QNetworkReply::finished, context, [reply, guard, done = std::move(done)] {
        HttpAnswer answer;
        if (!guard->breach().isNull())
            answer.error = guard->breach();
        else if (arrived(*reply))
            answer.body = reply->readAll();
        else
            answer.error = reply->errorString();
        done(answer);
    });
    QObject::connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
}
