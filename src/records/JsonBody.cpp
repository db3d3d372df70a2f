// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/JsonBody.h"

#include <QJsonParseError>

DecodeResult<QJsonDocument> parseJsonBody(const QByteArray &body)
{
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError)
        return DecodeResult<QJsonDocument>::failure(QStringLiteral("invalid JSON: %1 at offset %2").arg(error.errorString()).arg(error.offset));
    return DecodeResult<QJsonDocument>::success(std::move(document));
}

QString describeJsonDocument(const QJsonDocument &document)
{
    if (document.isArray())
        return QStringLiteral("an array");
    if (document.isObject())
        return QStringLiteral("an object");
    return QStringLiteral("nothing");
}
