// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/BackendQuery.h"

#include "service/ServiceLog.h"

#include <QLocale>

#include <algorithm>

QString percentEncodeQueryValue(const QString &value)
{
    // Beyond the unreserved characters, keep what a query allows and cannot
    // split a key from its value or one pair from the next.
    static const QByteArray kept = QByteArrayLiteral("!$'()*,;:@/?");
    return QString::fromLatin1(QUrl::toPercentEncoding(value, kept));
}

QString backendRequestText(BackendScript script, std::initializer_list<QueryValue> values)
{
    const QStringList &keys = scriptKeys(script);
    if (values.size() != static_cast<std::size_t>(keys.size()))
        qCWarning(lcService) << "Request for" << scriptUrl(script) << "has" << values.size() << "values for" << keys.size() << "keys";
    const bool encode = encodesValues(script);
    QString text = scriptUrl(script);
    for (const QString &key : keys) {
        const auto given = std::find_if(values.begin(), values.end(), [&key](const QueryValue &v) { return key == QLatin1String(v.key); });
        const QString value = given == values.end() ? QString() : given->value;
        text += (&key == &keys.first() ? QLatin1Char('?') : QLatin1Char('&')) + key + QLatin1Char('=') + (encode ? percentEncodeQueryValue(value) : value);
    }
    return text + fixedTail(script);
}

QUrl requestUrl(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    if (!url.isValid())
        qCWarning(lcService) << "Not sent, not a valid URL:" << text << url.errorString();
    return url.isValid() ? url : QUrl();
}

QString coordinateText(double degrees)
{
    return QLocale::c().toString(degrees, 'g', QLocale::FloatingPointShortest);
}
