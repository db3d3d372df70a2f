// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/NetworkSession.h"

#include "service/ExtraAuthorities.h"
#include "service/ServiceConfig.h"
#include "service/ServiceLog.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslConfiguration>

namespace
{
// The authorities of TARNELO_CA_FILE, or none.
ExtraAuthorities extraAuthorities()
{
    const QString file = ServiceConfig::extraCaFile();
    if (file.isEmpty())
        return ExtraAuthorities();
    const QList<QSslCertificate> extra = QSslCertificate::fromPath(file, QSsl::Pem);
    if (extra.isEmpty())
        qCWarning(lcService) << "No certificate could be read from" << file;
    return ExtraAuthorities(extra);
}

// A development backend signs its own certificate: a peer the extra
// authorities vouch for is accepted, while the system's are still looked up
// only as a handshake needs them.
void trustExtraAuthorities(QNetworkAccessManager *session)
{
    const ExtraAuthorities extra = extraAuthorities();
    if (extra.isEmpty())
        return;
    QObject::connect(session, &QNetworkAccessManager::sslErrors, session, [extra](QNetworkReply *reply, const QList<QSslError> &errors) {
        if (extra.vouchFor(reply->sslConfiguration().peerCertificateChain(), reply->url().host()))
            reply->ignoreSslErrors(errors);
    });
}

QNetworkAccessManager *makeSession()
{
    auto *session = new QNetworkAccessManager(QCoreApplication::instance());
    trustExtraAuthorities(session);
    // An idle time-out that every byte restarts; httpGet adds an overall
    // deadline, and decides on each redirect, which Qt 5 does not follow
    // unless told.
    session->setTransferTimeout(60 * 1000);
    return session;
}
} // namespace

QNetworkAccessManager &sharedNetworkSession()
{
    static QNetworkAccessManager *const session = makeSession();
    return *session;
}
