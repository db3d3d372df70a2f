// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/DoubleText.h"

#include <QLocale>
#include <QString>

#include <cmath>

QString doubleText(double value)
{
    if (std::isnan(value))
        return QStringLiteral("nan");
    if (std::isinf(value))
        return value > 0 ? QStringLiteral("inf") : QStringLiteral("-inf");
    const QLocale c = QLocale::c();
    const double magnitude = std::fabs(value);
    // Plain decimals in the everyday range, exponents beyond it.
    if (magnitude != 0 && (magnitude < 1e-4 || magnitude >= 1e16))
        return c.toString(value, 'g', QLocale::FloatingPointShortest);
    QString text = c.toString(value, 'f', QLocale::FloatingPointShortest);
    if (!text.contains(QLatin1Char('.')))
        text += QStringLiteral(".0");
    return text;
}
