// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/LocationLogUpload.h"

#include "common/Console.h"
#include "service/HttpGet.h"
#include "service/ServiceLog.h"

void sendLocationLog(std::initializer_list<QueryValue> values, const QObject *context)
{
    const QString text = backendRequestText(BackendScript::LocationLogs, values);
    Console::printLine(QStringLiteral("URL PRINT LOGS  ") + text);
    const QUrl url = requestUrl(text);
    if (url.isEmpty())
        return;
    httpGet(url, context, [](const HttpAnswer &answer) {
        if (!answer.received())
            qCWarning(lcService) << "Location log not delivered:" << answer.error;
    });
}
