// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/EmailPattern.h"

#include <QRegularExpression>

const QString &EmailPattern::pattern()
{
    static const QString text = QStringLiteral("^[A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\\.[A-Za-z]{2,}$");
    return text;
}

bool EmailPattern::accepts(const QString &address)
{
    // Anchored again so that a pattern edited without "^…$" still judges the whole text.
    static const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern()));
    return expression.match(address.trimmed()).hasMatch();
}
