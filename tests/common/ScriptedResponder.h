// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace httplib
{
class Server;
}

// A plain HTTP server on a free loopback port that answers each path with
// what the test scripted (by default 200 and "[]") and keeps the raw request
// targets it received, exactly as they came over the wire.
class ScriptedResponder
{
public:
    ScriptedResponder();
    ~ScriptedResponder();
    ScriptedResponder(const ScriptedResponder &) = delete;
    ScriptedResponder &operator=(const ScriptedResponder &) = delete;

    // "http://127.0.0.1:<port>"
    QString url() const;
    void answer(const std::string &path, int status, std::string body);
    // Targets received since the last call, oldest first.
    QStringList takeTargets();

private:
    struct Answer {
        int status;
        std::string body;
    };

    std::unique_ptr<httplib::Server> m_server;
    std::thread m_thread;
    int m_port = 0;
    std::mutex m_mutex;
    std::map<std::string, Answer> m_answers;
    QStringList m_targets;
};
