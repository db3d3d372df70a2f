// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/JsonBody.h"
#include "service/HttpGet.h"

#include <QString>
#include <QUrl>
#include <QVector>

#include <functional>
#include <utility>

// Prints a failure of a fetch as its console line, prefix and detail, and
// hands the same text to `onFailure`.
void reportFetchFailure(const QString &prefix, const QString &detail, const std::function<void(const QString &)> &onFailure);

// Fetches a list of T records: on the main thread `onItems` gets the decoded
// list, or, after the line "Failed to fetch data: ..." or "Failed to decode
// data: ..." is printed, `onFailure` gets that text. Nothing runs once
// `context` is gone.
template<typename T>
void fetchRecords(const QUrl &url, const QObject *context, std::function<void(QVector<T>)> onItems, std::function<void(const QString &)> onFailure)
{
    httpGet(url, context, [onItems = std::move(onItems), onFailure = std::move(onFailure)](const HttpAnswer &answer) {
        if (!answer.received()) {
            reportFetchFailure(QStringLiteral("Failed to fetch data: "), answer.error, onFailure);
            return;
        }
        DecodeResult<QVector<T>> decoded = decodeList<T>(answer.body);
        if (!decoded.ok()) {
            reportFetchFailure(QStringLiteral("Failed to decode data: "), decoded.error, onFailure);
            return;
        }
        onItems(std::move(*decoded.value));
    });
}
