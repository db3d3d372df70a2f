// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/AirAlertSettingsModel.h"

#include "airquality/AqiClassification.h"
#include "service/ProfileMedicalDetailsUrl.h"

#include <QLocale>

AirAlertSettingsModel::AirAlertSettingsModel(QObject *parent)
    : QObject(parent)
    , m_user(m_store.signedInUser())
    , m_settings(m_user.isEmpty() ? AlertSettings() : m_store.settings(m_user))
{
    if (m_settings.enabled)
        askForProfile();
}

QStringList AirAlertSettingsModel::levelNames()
{
    return AqiClassification::statusNames();
}

void AirAlertSettingsModel::askForProfile()
{
    if (m_profile || !signedIn())
        return;
    m_profile = new ProfileMedicalDetailsUrl(this);
    connect(m_profile, &ListFetcher::itemsChanged, this, [this] { takeThreshold(alertThresholdFor(m_profile->items())); });
    m_profile->fetch();
}

void AirAlertSettingsModel::takeThreshold(const AlertThreshold &threshold)
{
    m_threshold = threshold;
    // A level the user has not chosen follows the profile.
    if (!m_settings.level) {
        m_settings.level = threshold.category;
        save();
    }
    Q_EMIT settingsChanged();
}

void AirAlertSettingsModel::setEnabled(bool enabled)
{
    if (!signedIn() || enabled == m_settings.enabled)
        return;
    m_settings.enabled = enabled;
    m_settings.above = false;
    save();
    Q_EMIT settingsChanged();
    if (enabled)
        askForProfile();
}

void AirAlertSettingsModel::setLevel(int level)
{
    if (!signedIn() || level < 1 || level > 6 || m_settings.level == level)
        return;
    m_settings.level = level;
    m_settings.above = false;
    save();
    Q_EMIT settingsChanged();
}

QString AirAlertSettingsModel::reason() const
{
    if (!m_threshold)
        return m_settings.enabled ? QStringLiteral("Reading your medical profile…") : QStringLiteral("Turn on to start from your medical profile");
    if (m_settings.level == m_threshold->category)
        return m_threshold->reason;
    return QStringLiteral("Chosen by you; your medical profile suggests ") + levelNames().at(m_threshold->category - 1);
}

QVariantList AirAlertSettingsModel::receivedAlerts()
{
    QVariantList alerts;
    if (!signedIn())
        return alerts;
    for (const ReceivedAlert &alert : m_store.receivedAlerts(m_user))
        alerts.append(QVariantMap { { QStringLiteral("time"), QLocale().toString(alert.time.toLocalTime(), QLocale::ShortFormat) },
                                    { QStringLiteral("level"), levelNames().value(alert.category - 1) },
                                    { QStringLiteral("category"), alert.category },
                                    { QStringLiteral("town"), alert.town } });
    return alerts;
}

void AirAlertSettingsModel::save()
{
    m_store.saveSettings(m_user, m_settings);
}
