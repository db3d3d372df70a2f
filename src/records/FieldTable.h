// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/JsonReader.h"

#include <QJsonObject>
#include <QLatin1String>
#include <QString>

#include <cstddef>
#include <utility>

// Most records are flat: a list of keys, each holding a text (the backend sends
// every value as a string) or a number (the OpenWeatherMap readings). Such a
// record names its keys once, in a table of these, and that one table drives
// both decoding and encoding: a key can never be spelt one way when reading
// and another when writing.
template<typename T, typename V> struct RecordField {
    const char *key;
    V T::*member;
};
template<typename T> using TextField = RecordField<T, QString>;
template<typename T> using NumberField = RecordField<T, double>;

inline void readField(JsonReader &reader, const char *key, QString &out)
{
    out = reader.text(key);
}

inline void readField(JsonReader &reader, const char *key, double &out)
{
    out = reader.number(key);
}

template<typename T, typename V, std::size_t N> DecodeResult<T> decodeFields(const QJsonObject &object, const RecordField<T, V> (&fields)[N])
{
    JsonReader reader(object);
    T record {};
    for (const RecordField<T, V> &field : fields)
        readField(reader, field.key, record.*field.member);
    return reader.result(std::move(record));
}

template<typename T, typename V, std::size_t N> QJsonObject encodeFields(const T &record, const RecordField<T, V> (&fields)[N])
{
    QJsonObject object;
    for (const RecordField<T, V> &field : fields)
        object.insert(QLatin1String(field.key), record.*field.member);
    return object;
}
