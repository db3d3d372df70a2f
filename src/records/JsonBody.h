// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/JsonReader.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QVector>

// Parses an answer body; the error carries Qt's own parse error text and offset.
DecodeResult<QJsonDocument> parseJsonBody(const QByteArray &body);

// What an answer body holds at its top level, named as in decode errors.
QString describeJsonDocument(const QJsonDocument &document);

// An answer that must be a JSON array of T records. An empty array is an empty
// list; a single object where the array belongs is an error.
template<typename T> DecodeResult<QVector<T>> decodeList(const QByteArray &body)
{
    DecodeResult<QJsonDocument> parsed = parseJsonBody(body);
    if (!parsed.ok())
        return DecodeResult<QVector<T>>::failure(parsed.error);
    if (!parsed.value->isArray())
        return DecodeResult<QVector<T>>::failure(QStringLiteral("expected an array, found ") + describeJsonDocument(*parsed.value));
    return decodeRecordArray<T>(parsed.value->array());
}

// An answer that must be one JSON object holding a T.
template<typename T> DecodeResult<T> decodeObject(const QByteArray &body)
{
    DecodeResult<QJsonDocument> parsed = parseJsonBody(body);
    if (!parsed.ok())
        return DecodeResult<T>::failure(parsed.error);
    if (!parsed.value->isObject())
        return DecodeResult<T>::failure(QStringLiteral("expected an object, found ") + describeJsonDocument(*parsed.value));
    return T::fromJson(parsed.value->object());
}

// The inverse of decoding a list: each record through its toJson().
template<typename T> QJsonArray toJsonArray(const QVector<T> &records)
{
    QJsonArray out;
    for (const T &record : records)
        out.append(record.toJson());
    return out;
}
