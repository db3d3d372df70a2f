// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/PollutionHistoryClient.h"

#include "common/Console.h"
#include "records/JsonBody.h"
#include "service/BackendQuery.h"
#include "service/HttpGet.h"
#include "service/ServiceConfig.h"
#include "service/ServiceLog.h"

#include <QDateTime>

#include <cmath>

namespace
{
constexpr double sevenDays = 604800;
// A week of hourly entries is some 40 kB; far more is no history answer.
constexpr qint64 historyAnswerLimit = 5 * 1024 * 1024;

double clockSeconds()
{
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0;
}

// Truncated toward zero; a time that is not finite or does not fit 64 bits is
// refused rather than wrapped into a nonsense window.
std::optional<qint64> wholeSeconds(double seconds)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    const double whole = std::trunc(seconds);
    if (!std::isfinite(whole) || whole < -limit || whole >= limit)
        return std::nullopt;
    return static_cast<qint64>(whole);
}
} // namespace

PollutionHistoryClient::PollutionHistoryClient(QObject *parent)
    : QObject(parent)
{
}

std::optional<QString> PollutionHistoryClient::requestText(const QString &latitude, const QString &longitude, double startClock, double endClock)
{
    const std::optional<qint64> start = wholeSeconds(startClock - sevenDays);
    const std::optional<qint64> end = wholeSeconds(endClock);
    if (!start || !end)
        return std::nullopt;
    return ServiceConfig::historyHost() + QStringLiteral("/data/2.5/air_pollution/history?lat=") + latitude + QStringLiteral("&lon=") + longitude
        + QStringLiteral("&start=") + QString::number(*start) + QStringLiteral("&end=") + QString::number(*end) + QStringLiteral("&appid=")
        + ServiceConfig::historyKey();
}

void PollutionHistoryClient::fetchHistory(const QString &latitude, const QString &longitude)
{
    const double startClock = clockSeconds();
    const std::optional<QString> text = requestText(latitude, longitude, startClock, clockSeconds());
    if (!text) {
        qCWarning(lcService) << "History not requested: the clock reads" << startClock;
        Q_EMIT failed();
        return;
    }
    const QUrl url = requestUrl(*text);
    if (url.isEmpty()) {
        Q_EMIT failed();
        return;
    }
    const auto publish = [this](const HttpAnswer &answer) {
        if (!answer.received()) {
            qCWarning(lcService) << "History not received:" << answer.error;
            Q_EMIT failed();
            return;
        }
        const DecodeResult<AQIResponse> decoded = decodeObject<AQIResponse>(answer.body);
        if (!decoded.ok()) {
            Console::printLine(QStringLiteral("Error decoding JSON: ") + decoded.error);
            Q_EMIT failed();
            return;
        }
        Q_EMIT entriesReceived(decoded.value->list);
    };
    httpGet(url, this, publish, historyAnswerLimit);
}
