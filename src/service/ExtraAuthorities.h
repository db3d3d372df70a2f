// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QSslCertificate>

#include <memory>

struct x509_store_st;

// Certificate authorities trusted beside the system's: a development or
// packaged backend signs its own certificate. They vouch for a peer after Qt,
// which checks against the system's authorities alone, has called its chain
// untrusted.
//
// Why not hand them to Qt: a configuration given its own authorities
// (QSslConfiguration::setCaCertificates or addCaCertificates) stops Qt from
// looking the system's up one by one as a handshake needs them, so all of
// them, some two hundred, are read and parsed on the GUI thread before the
// first request.
class ExtraAuthorities
{
public:
    explicit ExtraAuthorities(const QList<QSslCertificate> &authorities = {});

    bool isEmpty() const { return !m_store; }
    // Whether the chain a peer sent, its own certificate first, leads to one
    // of these authorities, is valid today, serves TLS and names `host` (a
    // name or an address).
    bool vouchFor(const QList<QSslCertificate> &chain, const QString &host) const;

private:
    std::shared_ptr<x509_store_st> m_store;
};
