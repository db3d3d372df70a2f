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
    // Compared as text, as the classifier does: " 1" is no category.
    const int reading = category.size() == 1 && category.at(0) >= QLatin1Char('1') && category.at(0) <= QLatin1Char('6') ? category.at(0).digitValue() : 0;
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
