// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/GenderCode.h"

QStringList GenderCode::labels()
{
    return { QStringLiteral("Male"), QStringLiteral("Female"), QStringLiteral("Others") };
}

QString GenderCode::labelFor(const QString &code)
{
    if (code == QLatin1String("1"))
        return labels().at(0);
    if (code == QLatin1String("2"))
        return labels().at(1);
    return labels().at(2);
}

QString GenderCode::codeFor(const QString &label)
{
    const int index = labels().indexOf(label);
    return index < 0 ? QString() : QString::number(index + 1);
}
