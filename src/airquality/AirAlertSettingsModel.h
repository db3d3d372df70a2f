// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "airquality/AlertThreshold.h"
#include "storage/AlertStore.h"

#include <QObject>
#include <QStringList>
#include <QVariantList>

#include <optional>

class ProfileMedicalDetailsUrl;

// The signed-in user's air alert settings on the notifications screen, and
// the alerts they received. The level starts from their medical profile,
// which is asked for only while alerts are on.
class AirAlertSettingsModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool signedIn READ signedIn CONSTANT)
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY settingsChanged)
    // A category, 1 to 6; 0 while it is not known yet.
    Q_PROPERTY(int level READ level WRITE setLevel NOTIFY settingsChanged)
    Q_PROPERTY(QStringList levelNames READ levelNames CONSTANT)
    Q_PROPERTY(QString reason READ reason NOTIFY settingsChanged)
    // Newest first, as maps with "time", "level", "category" and "town".
    Q_PROPERTY(QVariantList receivedAlerts READ receivedAlerts CONSTANT)

public:
    explicit AirAlertSettingsModel(QObject *parent = nullptr);

    bool signedIn() const { return !m_user.isEmpty(); }
    bool enabled() const { return m_settings.enabled; }
    void setEnabled(bool enabled);
    int level() const { return m_settings.level.value_or(0); }
    void setLevel(int level);
    static QStringList levelNames();
    QString reason() const;
    QVariantList receivedAlerts();

    // Where the profile's answer lands.
    void takeThreshold(const AlertThreshold &threshold);

Q_SIGNALS:
    void settingsChanged();

private:
    void askForProfile();
    void save();

    AlertStore m_store;
    QString m_user;
    AlertSettings m_settings;
    std::optional<AlertThreshold> m_threshold;
    ProfileMedicalDetailsUrl *m_profile = nullptr;
};
