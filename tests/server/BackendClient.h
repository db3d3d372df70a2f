// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <httplib.h>
#include <nlohmann/json.hpp>

#include <string>

class DevServerProcess;

// A plain answer: the status (0 when none came) and the body as JSON (null if it was not JSON).
struct Answer {
    int status = 0;
    nlohmann::json body;
    // The first record of an array answer, or null.
    nlohmann::json first() const;
};

// Asks the backend's scripts as the app does: over HTTPS, trusting only the
// server's own certificate, and checking that it names 127.0.0.1. A source
// address (any of 127.0.0.0/8) makes it another client in the server's eyes.
class BackendClient
{
public:
    explicit BackendClient(const DevServerProcess &server, const std::string &sourceAddress = {});

    Answer script(const std::string &name, const httplib::Params &params);
    // A path and query sent exactly as written, for malformed requests.
    Answer raw(const std::string &pathAndQuery);

private:
    httplib::SSLClient m_client;
};

// The history stand-in on the server's plain HTTP port.
Answer history(const DevServerProcess &server, const httplib::Params &params);

// A record's value as text for QCOMPARE, or a note saying why there is none.
QString field(const nlohmann::json &record, const char *key);
QString dumped(const nlohmann::json &json);
