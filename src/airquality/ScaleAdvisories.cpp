// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/ScaleAdvisories.h"

#include <QStringList>

QString ScaleAdvisories::advisory(int category)
{
    // Worded exactly as the scale has always been, slips and all.
    static const QStringList advisories {
        QStringLiteral("None"),
        QStringLiteral("Usually sensitive individual should consider limiting prolonged outdoor exertion."),
        QStringLiteral("Children, active adults, and people with respiratory disease, such as asthma, should limit pronged outdoor exertion."),
        QStringLiteral("Children, active adults, and people with respiratory disease, such as asthma, should avoid outdoor exertion;everyone else "
                       "should limit prolonged outdoor exertion."),
        QStringLiteral("Heath alert: The risk of health effects is increased for everyone."),
        QStringLiteral("Health warning of emergency conditions: everyone is more likely to be affected."),
    };
    return advisories.value(category - 1);
}
