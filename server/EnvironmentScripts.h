// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "server/OpenWeatherClient.h"
#include "server/ScriptRouter.h"

#include <optional>

// airquality and weatherapi: real readings when an OpenWeatherMap key is
// configured, the simulation otherwise or when the service fails.
class EnvironmentScripts
{
public:
    explicit EnvironmentScripts(std::optional<OpenWeatherClient> upstream);
    void addTo(ScriptRouter &router);

private:
    ScriptAnswer airQuality(const Query &query) const;
    ScriptAnswer weather(const Query &query) const;

    std::optional<OpenWeatherClient> m_upstream;
};
