// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/Query.h"
#include "server/Records.h"

#include <httplib.h>

#include <functional>
#include <map>
#include <string>

struct ScriptAnswer {
    Json body = Json::array();
    std::string readingSource; // empty for answers without readings
};

// An answer holding one record.
inline ScriptAnswer answerWith(Json record)
{
    return { Json::array({ std::move(record) }), {} };
}

using ScriptHandler = std::function<ScriptAnswer(const Query &)>;

// Maps script names ("login.php") to their handlers and turns every outcome
// into the app's JSON: bad input and failures become a refused LoginModel with
// status 200, an unknown script the same with status 404. Never a 500.
class ScriptRouter
{
public:
    void add(const std::string &script, ScriptHandler handler);
    void serve(const std::string &script, const httplib::Params &params, httplib::Response &response) const;

    // The refusal, as a whole answer, for requests that reach no script at all.
    static void refuse(httplib::Response &response, const std::string &message);

private:
    std::map<std::string, ScriptHandler> m_scripts;
};
