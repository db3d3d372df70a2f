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

void ScriptRouter::add(const std::string &script, ScriptHandler handler)
{
    m_scripts[script] = std::move(handler);
}

void ScriptRouter::refuse(httplib::Response &response, const std::string &message)
{
    writeJson(response, Json::array({ refusedRecord(message) }));
}

void ScriptRouter::serve(const std::string &script, const httplib::Params &params, httplib::Response &response) const
{
    const auto found = m_scripts.find(script);
    if (found == m_scripts.end()) {
        response.status = 404;
        refuse(response, "Unknown script: " + script);
        return;
    }
    try {
        const ScriptAnswer answer = found->second(Query(params));
        if (!answer.readingSource.empty())
            response.set_header(readingSourceHeader, answer.readingSource);
        writeJson(response, answer.body);
    } catch (const BadInput &error) {
        refuse(response, error.what());
    } catch (const std::exception &error) {
        Console::printLine("Error in " + script + ": " + error.what());
        refuse(response, "The server could not handle this request. Please try again.");
    }
}
