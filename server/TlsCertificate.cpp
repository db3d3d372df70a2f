// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/TlsCertificate.h"

#include "server/PrivateFiles.h"

#include <openssl/bn.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <filesystem>
#include <memory>
#include <stdexcept>

namespace
{
constexpr long validitySeconds = 2L * 365 * 24 * 3600;

using KeyPointer = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using CertificatePointer = std::unique_ptr<X509, decltype(&X509_free)>;

void check(bool ok, const char *step)
{
    if (!ok)
        throw std::runtime_error(std::string("cannot make the TLS certificate (") + step + "): " + ERR_error_string(ERR_get_error(), nullptr));
}

void addExtension(X509 *certificate, int nid, const char *value)
{
    X509V3_CTX context;
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, certificate, certificate, nullptr, nullptr, 0);
    X509_EXTENSION *extension = X509V3_EXT_conf_nid(nullptr, &context, nid, value);
    check(extension != nullptr, value);
    const int added = X509_add_ext(certificate, extension, -1);
    X509_EXTENSION_free(extension);
    check(added == 1, value);
}

void setRandomSerial(X509 *certificate)
{
    const std::unique_ptr<BIGNUM, decltype(&BN_free)> serial(BN_new(), BN_free);
    check(serial && BN_rand(serial.get(), 127, BN_RAND_TOP_ANY, BN_RAND_BOTTOM_ANY) == 1, "serial");
    check(BN_to_ASN1_INTEGER(serial.get(), X509_get_serialNumber(certificate)) != nullptr, "serial");
}

CertificatePointer makeCertificate(EVP_PKEY *key)
{
    CertificatePointer certificate(X509_new(), X509_free);
    X509 *cert = certificate.get();
    check(cert != nullptr && X509_set_version(cert, X509_VERSION_3) == 1, "version");
    setRandomSerial(cert);
    // Backdated an hour so that a client whose clock lags a little accepts it.
    check(X509_gmtime_adj(X509_getm_notBefore(cert), -3600) && X509_gmtime_adj(X509_getm_notAfter(cert), validitySeconds), "validity");
    check(X509_set_pubkey(cert, key) == 1, "public key");

    X509_NAME *name = X509_get_subject_name(cert);
    const auto text = [](const char *value) { return reinterpret_cast<const unsigned char *>(value); };
    check(X509_NAME_add_entry_by_txt(name, "O", MBSTRING_ASC, text("Tarnelo"), -1, -1, 0) == 1
              && X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, text("Tarnelo development backend"), -1, -1, 0) == 1
              && X509_set_issuer_name(cert, name) == 1,
          "name");

    addExtension(cert, NID_basic_constraints, "critical,CA:TRUE");
    addExtension(cert, NID_key_usage, "critical,digitalSignature,keyCertSign");
    addExtension(cert, NID_ext_key_usage, "serverAuth");
    addExtension(cert, NID_subject_key_identifier, "hash");
    addExtension(cert, NID_subject_alt_name, "IP:127.0.0.1,IP:::1,DNS:localhost");
    check(X509_sign(cert, key, EVP_sha256()) > 0, "signature");
    return certificate;
}

void writeFiles(const TlsFiles &files)
{
    const KeyPointer key(EVP_EC_gen("P-256"), EVP_PKEY_free);
    check(key != nullptr, "key");
    const CertificatePointer certificate = makeCertificate(key.get());

    const FileHandle keyFile = openPrivateFile(files.privateKey);
    check(PEM_write_PrivateKey(keyFile.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr) == 1, "writing the key");
    const FileHandle certificateFile(std::fopen(files.certificate.c_str(), "w"));
    if (!certificateFile)
        throw std::runtime_error("cannot create " + files.certificate);
    check(PEM_write_X509(certificateFile.get(), certificate.get()) == 1, "writing the certificate");
}
} // namespace

TlsFiles ensureTlsCertificate(const std::string &tlsDir)
{
    ensurePrivateDirectory(tlsDir);
    const std::filesystem::path dir = std::filesystem::absolute(tlsDir);
    const TlsFiles files { (dir / "cert.pem").lexically_normal().string(), (dir / "key.pem").lexically_normal().string() };
    if (!std::filesystem::exists(files.certificate) || !std::filesystem::exists(files.privateKey))
        writeFiles(files);
    else
        restrictExistingFile(files.privateKey);
    return files;
}
