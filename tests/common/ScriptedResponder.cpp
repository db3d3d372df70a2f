// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/ScriptedResponder.h"

#include <httplib.h>

ScriptedResponder::ScriptedResponder()
    : m_server(std::make_unique<httplib::Server>())
{
    m_server->Get(".*", [this](const httplib::Request &request, httplib::Response &response) {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_targets.append(QString::fromStdString(request.target));
        const auto scripted = m_answers.find(request.path);
        response.status = scripted == m_answers.end() ? 200 : scripted->second.status;
        response.set_content(scripted == m_answers.end() ? std::string("[]") : scripted->second.body, "application/json");
    });
    // The client keeps its connection open; a short wait for its next request
    // lets the server stop soon after the test.
    m_server->set_keep_alive_timeout(1);
    m_port = m_server->bind_to_any_port("127.0.0.1");
    m_thread = std::thread([this] { m_server->listen_after_bind(); });
}

ScriptedResponder::~ScriptedResponder()
{
    m_server->stop();
    m_thread.join();
}

QString ScriptedResponder::url() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_port);
}

void ScriptedResponder::answer(const std::string &path, int status, std::string body)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_answers[path] = Answer { status, std::move(body) };
}

QStringList ScriptedResponder::takeTargets()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return std::exchange(m_targets, {});
}
