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

struct ScriptRequest {
    const Query &query;
    const std::string &clientAddress;
};

using ScriptHandler = std::function<ScriptAnswer(const ScriptRequest &)>;

// Maps script names ("login.php") to their handlers and turns every outcome
// into the app's JSON, with status 200: never a 500. Bad input and failures
// get the refusal the app can decode for that script, an unknown script a
// refused LoginModel with status 404.
class ScriptRouter
{
public:
    enum class Refusal {
        AccountRecord, // a refused LoginModel naming the problem
        EmptyList, // [] for scripts the app decodes as lists of other records; the console names the problem
    };

    void add(const std::string &script, Refusal refusal, ScriptHandler handler);
    void serve(const std::string &script, const httplib::Request &request, httplib::Response &response) const;

    // The refusal, as a whole answer, for requests that reach no script at all.
    static void refuse(httplib::Response &response, const std::string &message);

private:
    struct Script {
        Refusal refusal;
        ScriptHandler handler;
    };
    std::map<std::string, Script> m_scripts;
};
