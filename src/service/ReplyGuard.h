// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <chrono>

class QNetworkReply;
class QUrl;

// Holds one reply to the rules every request of the app obeys, and aborts it
// the moment it breaks one:
// - a redirect is followed only within the scheme, host and port the request
//   was sent to, since a query may carry a password;
// - the body may not grow beyond a limit, announced or received, so that a
//   server cannot fill the app's memory;
// - the whole exchange ends by a deadline, since the session's idle time-out
//   restarts with every byte and a server that trickles never trips it.
// The request must have been sent with UserVerifiedRedirectPolicy. The guard
// is a child of the reply and goes with it.
class ReplyGuard : public QObject
{
    Q_OBJECT

public:
    ReplyGuard(QNetworkReply *reply, qint64 bodyLimit, std::chrono::seconds deadline);

    // What the reply was aborted for, as a developer would want to read it;
    // null while it keeps to the rules.
    QString breach() const { return m_breach; }

private:
    void checkRedirect(const QUrl &target);
    void checkSize(qint64 bytes);
    void abortFor(const QString &breach);

    QNetworkReply *m_reply;
    qint64 m_bodyLimit;
    QString m_breach;
};
