// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/DecodeResult.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVector>

#include <utility>

// How a value's JSON type is named in decode errors ("a string", "null", ...).
QString describeJsonType(const QJsonValue &value);

// Reads the fields of one JSON object as strictly as the services' records
// demand: every requested key must be present with a value of exactly the
// requested JSON type. The first failure is kept and later reads return
// defaults, so a record can read all its fields in one go and ask for the
// outcome at the end. Members nobody asks for are ignored.
class JsonReader
{
public:
    explicit JsonReader(QJsonObject object);

    QString text(const char *key);
    // A JSON number with no fractional part that fits in 64 bits.
    qint64 integer(const char *key);
    // Any JSON number; integers are numbers too.
    double number(const char *key);
    QJsonObject object(const char *key);
    QJsonArray array(const char *key);

    // A nested record, decoded by T::fromJson(const QJsonObject &).
    template<typename T> T record(const char *key);
    // An array of nested records, each decoded by T::fromJson.
    template<typename T> QVector<T> records(const char *key);

    bool ok() const { return m_error.isEmpty(); }
    const QString &error() const { return m_error; }

    // The decoded value if every read succeeded, otherwise the first error.
    template<typename T> DecodeResult<T> result(T value) const { return ok() ? DecodeResult<T>::success(std::move(value)) : DecodeResult<T>::failure(m_error); }

private:
    // The value under key if it has the expected type, otherwise an undefined
    // value and the failure recorded.
    QJsonValue take(const char *key, QJsonValue::Type expected, const char *expectedName);
    void failAt(const char *key, const QString &reason);

    QJsonObject m_object;
    QString m_error;
};

// Decodes every element of an array as a T; an element that is not an object,
// or does not decode, fails the whole array so no partial list ever escapes.
template<typename T> DecodeResult<QVector<T>> decodeRecordArray(const QJsonArray &array)
{
    QVector<T> out;
    out.reserve(array.size());
    for (int i = 0; i < array.size(); ++i) {
        const QString where = QStringLiteral("element %1: ").arg(i);
        const QJsonValue element = array.at(i);
        if (!element.isObject())
            return DecodeResult<QVector<T>>::failure(where + QStringLiteral("expected an object, found ") + describeJsonType(element));
        DecodeResult<T> item = T::fromJson(element.toObject());
        if (!item.ok())
            return DecodeResult<QVector<T>>::failure(where + item.error);
        out.append(std::move(*item.value));
    }
    return DecodeResult<QVector<T>>::success(std::move(out));
}

template<typename T> T JsonReader::record(const char *key)
{
    const QJsonObject nested = object(key);
    if (!ok())
        return T();
    DecodeResult<T> decoded = T::fromJson(nested);
    if (!decoded.ok()) {
        failAt(key, decoded.error);
        return T();
    }
    return std::move(*decoded.value);
}

template<typename T> QVector<T> JsonReader::records(const char *key)
{
    const QJsonArray nested = array(key);
    if (!ok())
        return {};
    DecodeResult<QVector<T>> decoded = decodeRecordArray<T>(nested);
    if (!decoded.ok()) {
        failAt(key, decoded.error);
        return {};
    }
    return std::move(*decoded.value);
}
