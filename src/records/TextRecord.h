// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/JsonReader.h"

#include <QJsonObject>
#include <QLatin1String>
#include <QString>

#include <cstddef>
#include <utility>

// The backend sends every value as a JSON string, so most of its records are
// nothing but a list of keys. Each such record names its keys once, in a table
// of these, and that one table drives both decoding and encoding: a key can
// never be spelt one way when reading and another when writing.
template<typename T> struct TextField {
    const char *key;
    QString T::*member;
};

template<typename T, std::size_t N> DecodeResult<T> decodeTextRecord(const QJsonObject &object, const TextField<T> (&fields)[N])
{
    JsonReader reader(object);
    T record;
    for (const TextField<T> &field : fields)
        record.*field.member = reader.text(field.key);
    return reader.result(std::move(record));
}

template<typename T, std::size_t N> QJsonObject encodeTextRecord(const T &record, const TextField<T> (&fields)[N])
{
    QJsonObject object;
    for (const TextField<T> &field : fields)
        object.insert(QLatin1String(field.key), record.*field.member);
    return object;
}
