// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/HistoryViewDateFormat.h"

#include <QRegularExpression>

namespace
{
// A leading field takes the separator after it, any other the one before.
QString withoutField(QString format, QChar field)
{
    const QString letter = QRegularExpression::escape(field);
    format.remove(QRegularExpression(QStringLiteral("^") + letter + QStringLiteral("+[^A-Za-z]*")));
    return format.remove(QRegularExpression(QStringLiteral("[^A-Za-z]*") + letter + QStringLiteral("+")));
}
} // namespace

QString yearlessDateFormat(const QString &shortDateFormat)
{
    return withoutField(shortDateFormat, QLatin1Char('y'));
}

QString secondlessTimeFormat(const QString &shortTimeFormat)
{
    return withoutField(shortTimeFormat, QLatin1Char('s'));
}
