// SPDX-License-Identifier: GPL-3.0-or-later
#include "BackendClient.h"

#include "common/DevServerProcess.h"

namespace
{
Answer answerOf(const httplib::Result &result)
{
    if (!result)
        return {};
    const nlohmann::json body = nlohmann::json::parse(result->body, nullptr, false);
    return { result->status, body.is_discarded() ? nlohmann::json() : body };
}
} // namespace

nlohmann::json Answer::first() const
{
    return body.is_array() && !body.empty() ? body.front() : nlohmann::json();
}

BackendClient::BackendClient(const DevServerProcess &server, const std::string &sourceAddress)
    : m_client("127.0.0.1", server.httpsPort())
{
    // httplib binds to an address given as the interface's name.
    if (!sourceAddress.empty())
        m_client.set_interface(sourceAddress);
    m_client.set_ca_cert_path(server.caFile().toStdString());
    m_client.enable_server_certificate_verification(true);
    m_client.set_read_timeout(30);
}

Answer BackendClient::script(const std::string &name, const httplib::Params &params)
{
    return answerOf(m_client.Get(httplib::append_query_params("/tarnelo/v1/" + name, params)));
}

Answer BackendClient::raw(const std::string &pathAndQuery)
{
    return answerOf(m_client.Get(pathAndQuery));
}

Answer history(const DevServerProcess &server, const httplib::Params &params)
{
    httplib::Client client("127.0.0.1", server.httpPort());
    return answerOf(client.Get(httplib::append_query_params("/data/2.5/air_pollution/history", params)));
}

QString field(const nlohmann::json &record, const char *key)
{
    if (!record.is_object() || !record.contains(key))
        return QStringLiteral("<missing>");
    const nlohmann::json &value = record.at(key);
    return value.is_string() ? QString::fromStdString(value.get<std::string>()) : QStringLiteral("<not a string: ") + dumped(value) + QLatin1Char('>');
}

QString dumped(const nlohmann::json &json)
{
    return QString::fromStdString(json.dump());
}
