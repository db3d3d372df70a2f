// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/NetworkSession.h"

#include "service/ServiceConfig.h"
#include "service/ServiceLog.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QSslConfiguration>

namespace
{
// A development backend signs its own certificate; trusting it must not cost
// the system's authorities, so both go into the default configuration.
void trustExtraAuthorities()
{
    const QString file = ServiceConfig::extraCaFile();
    if (file.isEmpty())
        return;
    const QList<QSslCertificate> extra = QSslCertificate::fromPath(file, QSsl::Pem);
    if (extra.isEmpty()) {
        qCWarning(lcService) << "No certificate could be read from" << file;
        return;
    }
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates(QSslConfiguration::systemCaCertificates() + extra);
    QSslConfiguration::setDefaultConfiguration(configuration);
}

QNetworkAccessManager *makeSession()
{
    trustExtraAuthorities();
    auto *session = new QNetworkAccessManager(QCoreApplication::instance());
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
