// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/ScriptRouter.h"

#include "server/Console.h"
#include "server/RequestLog.h"

namespace
{
void writeJson(httplib::Response &response, const Json &body)
{
    // Replaces rather than throws on bytes that are not UTF-8, which only a
    // message echoing a malformed script name can carry.
    response.set_content(body.dump(-1, ' ', false, Json::error_handler_t::replace), "application/json");
}
} // namespace

void ScriptRouter::add(const std::string &script, Refusal refusal, ScriptHandler handler)
{
    m_scripts[script] = { refusal, std::move(handler) };
}

void ScriptRouter::refuse(httplib::Response &response, const std::string &message)
{
    writeJson(response, Json::array({ refusedRecord(message) }));
}

void ScriptRouter::serve(const std::string &script, const httplib::Request &request, httplib::Response &response) const
{
    const auto found = m_scripts.find(script);
    if (found == m_scripts.end()) {
        response.status = 404;
        refuse(response, "Unknown script: " + script);
        return;
    }
    const bool listScript = found->second.refusal == Refusal::EmptyList;
    const auto refuseWith = [&](const std::string &message) {
        if (listScript)
            writeJson(response, Json::array());
        else
            refuse(response, message);
    };
    try {
        const ScriptAnswer answer = found->second.handler({ Query(request.params), request.remote_addr });
        if (!answer.readingSource.empty())
            response.set_header(readingSourceHeader, answer.readingSource);
        writeJson(response, answer.body);
    } catch (const BadInput &error) {
        // An empty list has no place for the reason: the console keeps it.
        if (listScript)
            Console::printLine("Refused " + script + ": " + error.what());
        refuseWith(error.what());
    } catch (const std::exception &error) {
        Console::printLine("Error in " + script + ": " + error.what());
        refuseWith("The server could not handle this request. Please try again.");
    }
}
