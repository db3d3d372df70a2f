// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/JsonReader.h"

#include <QVariant>

#include <cmath>

QString describeJsonType(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return QStringLiteral("a boolean");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a string");
    case QJsonValue::Array:
        return QStringLiteral("an array");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("nothing");
}

JsonReader::JsonReader(QJsonObject object)
    : m_object(std::move(object))
{
}

void JsonReader::failAt(const char *key, const QString &reason)
{
    if (ok())
        m_error = QStringLiteral("key \"") + QLatin1String(key) + QStringLiteral("\": ") + reason;
}

QJsonValue JsonReader::take(const char *key, QJsonValue::Type expected, const char *expectedName)
{
    if (!ok())
        return QJsonValue(QJsonValue::Undefined);
    const auto it = m_object.constFind(QLatin1String(key));
    const QString wanted = QStringLiteral("expected ") + QLatin1String(expectedName);
    if (it == m_object.constEnd()) {
        failAt(key, wanted + QStringLiteral(", but the key is missing"));
        return QJsonValue(QJsonValue::Undefined);
    }
    const QJsonValue value = it.value();
    if (value.type() != expected) {
        failAt(key, wanted + QStringLiteral(", found ") + describeJsonType(value));
        return QJsonValue(QJsonValue::Undefined);
    }
    return value;
}

QString JsonReader::text(const char *key)
{
    return take(key, QJsonValue::String, "a string").toString();
}

qint64 JsonReader::integer(const char *key)
{
    const QJsonValue value = take(key, QJsonValue::Double, "an integer");
    if (!ok())
        return 0;
    // Qt keeps integral JSON numbers that fit in 64 bits as integers; only those
    // arrive here exactly. Anything else was parsed as a double.
    const QVariant exact = value.toVariant();
    if (exact.userType() == QMetaType::LongLong)
        return exact.toLongLong();
    const double d = value.toDouble();
    if (std::trunc(d) != d) {
        failAt(key, QStringLiteral("expected an integer, found a number with a fractional part"));
        return 0;
    }
    // 2^63 itself is the first integral double that no longer fits.
    constexpr double limit = 9223372036854775808.0;
    if (d < -limit || d >= limit) {
        failAt(key, QStringLiteral("expected an integer, found a number outside the 64-bit range"));
        return 0;
    }
    return static_cast<qint64>(d);
}

double JsonReader::number(const char *key)
{
    return take(key, QJsonValue::Double, "a number").toDouble();
}

QJsonObject JsonReader::object(const char *key)
{
    return take(key, QJsonValue::Object, "an object").toObject();
}

QJsonArray JsonReader::array(const char *key)
{
    return take(key, QJsonValue::Array, "an array").toArray();
}
