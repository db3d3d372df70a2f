// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ServiceConfig.h"

#include <QDir>
#include <QStandardPaths>

namespace
{
QString setting(const char *variable, const char *builtIn)
{
    const QString value = qEnvironmentVariable(variable);
    return value.isEmpty() ? QString::fromUtf8(builtIn) : value;
}

QString withoutTrailingSlash(QString url)
{
    while (url.endsWith(QLatin1Char('/')))
        url.chop(1);
    return url;
}
} // namespace

QString ServiceConfig::backendHost()
{
    return withoutTrailingSlash(setting("TARNELO_BACKEND_URL", TARNELO_DEFAULT_BACKEND_URL));
}

QString ServiceConfig::historyHost()
{
    return withoutTrailingSlash(setting("TARNELO_HISTORY_URL", TARNELO_DEFAULT_HISTORY_URL));
}

QString ServiceConfig::historyKey()
{
    return setting("TARNELO_OWM_KEY", TARNELO_DEFAULT_OWM_KEY);
}

QString ServiceConfig::extraCaFile()
{
    const QString chosen = qEnvironmentVariable("TARNELO_CA_FILE");
    if (!chosen.isEmpty())
        return chosen;
    const QString builtIn = QString::fromUtf8(TARNELO_DEFAULT_CA_FILE);
    if (builtIn.isEmpty() || QDir::isAbsolutePath(builtIn))
        return builtIn;
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)).filePath(builtIn);
}

std::chrono::seconds ServiceConfig::requestDeadline()
{
    bool valid = false;
    const int seconds = qEnvironmentVariableIntValue("TARNELO_REQUEST_DEADLINE", &valid);
    return std::chrono::seconds(valid && seconds > 0 ? seconds : TARNELO_DEFAULT_REQUEST_DEADLINE);
}
