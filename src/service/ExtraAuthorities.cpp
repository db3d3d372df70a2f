// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ExtraAuthorities.h"

#include <QHostAddress>

#include <openssl/x509.h>
#include <openssl/x509_vfy.h>
#include <openssl/x509v3.h>

#include <vector>

namespace
{
struct X509Free {
    void operator()(X509 *certificate) const { X509_free(certificate); }
};
using OwnedX509 = std::unique_ptr<X509, X509Free>;

OwnedX509 toX509(const QSslCertificate &certificate)
{
    const QByteArray der = certificate.toDer();
    const auto *bytes = reinterpret_cast<const unsigned char *>(der.constData());
    return OwnedX509(d2i_X509(nullptr, &bytes, der.size()));
}

bool expectHost(X509_VERIFY_PARAM *parameters, const QString &host)
{
    const QByteArray text = host.toUtf8();
    if (QHostAddress(host).isNull())
        return X509_VERIFY_PARAM_set1_host(parameters, text.constData(), static_cast<size_t>(text.size())) == 1;
    return X509_VERIFY_PARAM_set1_ip_asc(parameters, text.constData()) == 1;
}
} // namespace

ExtraAuthorities::ExtraAuthorities(const QList<QSslCertificate> &authorities)
{
    if (authorities.isEmpty())
        return;
    std::shared_ptr<X509_STORE> store(X509_STORE_new(), X509_STORE_free);
    for (const QSslCertificate &authority : authorities) {
        const OwnedX509 certificate = toX509(authority);
        if (!certificate || X509_STORE_add_cert(store.get(), certificate.get()) != 1)
            return;
    }
    m_store = std::move(store);
}

bool ExtraAuthorities::vouchFor(const QList<QSslCertificate> &chain, const QString &host) const
{
    if (!m_store || chain.isEmpty())
        return false;
    const OwnedX509 peer = toX509(chain.first());
    std::vector<OwnedX509> intermediates;
    const std::unique_ptr<STACK_OF(X509), void (*)(STACK_OF(X509) *)> untrusted(sk_X509_new_null(), [](STACK_OF(X509) * stack) { sk_X509_free(stack); });
    if (!peer || !untrusted)
        return false;
    for (int i = 1; i < chain.size(); ++i) {
        intermediates.push_back(toX509(chain.at(i)));
        if (!intermediates.back() || !sk_X509_push(untrusted.get(), intermediates.back().get()))
            return false;
    }
    const std::unique_ptr<X509_STORE_CTX, void (*)(X509_STORE_CTX *)> context(X509_STORE_CTX_new(), X509_STORE_CTX_free);
    if (!context || X509_STORE_CTX_init(context.get(), m_store.get(), peer.get(), untrusted.get()) != 1)
        return false;
    X509_STORE_CTX_set_purpose(context.get(), X509_PURPOSE_SSL_SERVER);
    return expectHost(X509_STORE_CTX_get0_param(context.get()), host) && X509_verify_cert(context.get()) == 1;
}
