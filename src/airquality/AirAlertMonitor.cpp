// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/AirAlertMonitor.h"

#include "airquality/AqiClassification.h"
#include "airquality/DesktopNotifier.h"
#include "airquality/ScaleAdvisories.h"

AirAlertMonitor::AirAlertMonitor(AlertStore &store, QObject *parent)
    : QObject(parent)
    , m_store(store)
{
}

bool AirAlertMonitor::alertsOn()
{
    const QString user = m_store.signedInUser();
    return !user.isEmpty() && m_store.settings(user).enabled;
}

void AirAlertMonitor::check(const QString &category, const QString &town)
{
    const QStringList names = AqiClassification::statusNames();
    const int reading = AqiClassification::categoryNumber(category);
    const QString user = m_store.signedInUser();
    if (reading == 0 || user.isEmpty())
        return;
    AlertSettings settings = m_store.settings(user);
    if (!settings.enabled || !settings.level)
        return;
    const bool above = reading >= *settings.level;
    if (above == settings.above)
        return;
    settings.above = above;
    m_store.saveSettings(user, settings);
    if (!above)
        return;
    const QString place = town.isEmpty() ? QStringLiteral("where you are") : QStringLiteral("in ") + town;
    DesktopNotifier::instance().notify(names.at(reading - 1) + QStringLiteral(" air ") + place, ScaleAdvisories::advisory(reading));
    m_store.addReceivedAlert(user, { QDateTime::currentDateTimeUtc(), reading, town });
    Q_EMIT alerted(reading, town);
}
