// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/AlertThreshold.h"

#include "records/ProfileMedDetailsModel.h"

#include <QStringList>

AlertThreshold alertThresholdFor(const QVector<ProfileMedDetailsModel> &profiles)
{
    if (profiles.isEmpty())
        return { 4, QStringLiteral("Set for everyone: your medical profile is not filled in") };
    // The medical screen answers "Yes" to having a condition and "Smoker" to smoking.
    const ProfileMedDetailsModel &profile = profiles.first();
    QStringList why;
    if (profile.conditionstatus == QLatin1String("Yes"))
        why.append(profile.conditionname.trimmed().isEmpty() ? QStringLiteral("a condition") : profile.conditionname.trimmed());
    if (profile.smoker == QLatin1String("Smoker"))
        why.append(why.isEmpty() ? QStringLiteral("Smoker") : QStringLiteral("smoker"));
    if (why.isEmpty())
        return { 4, QStringLiteral("Set for your medical profile: no condition, not smoking") };
    return { 3, QStringLiteral("Set for your medical profile: ") + why.join(QStringLiteral(", ")) };
}
