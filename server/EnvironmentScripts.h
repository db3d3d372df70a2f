// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/ScriptRouter.h"

class ReadingSources;

// airquality and weatherapi: the readings of the first source that gives them.
class EnvironmentScripts
{
public:
    explicit EnvironmentScripts(ReadingSources &sources);
    void addTo(ScriptRouter &router);

private:
    ScriptAnswer airQuality(const Query &query) const;
    ScriptAnswer weather(const Query &query) const;

    ReadingSources &m_sources;
};
