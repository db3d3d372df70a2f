// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

struct TlsFiles {
    std::string certificate; // absolute path of cert.pem, also the clients' CA file
    std::string privateKey;
};

// The certificate and key in tlsDir, made on first use: a self-signed P-256
// certificate for 127.0.0.1, ::1 and localhost that is its own authority, so a
// client can trust exactly this file. Throws std::runtime_error on failure.
TlsFiles ensureTlsCertificate(const std::string &tlsDir);
