// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/AlertStore.h"

#include <QObject>
#include <QString>

// Watches the categories the dashboard decodes for the signed-in user with air
// alerts on: when one reaches their level and the previous check was below
// it, it sends a desktop notification and lists the alert; it warns again
// only once the air has gone back below the level.
class AirAlertMonitor : public QObject
{
    Q_OBJECT

public:
    explicit AirAlertMonitor(AlertStore &store, QObject *parent = nullptr);

    void check(const QString &category, const QString &town);
    bool alertsOn();

Q_SIGNALS:
    void alerted(int category, const QString &town);

private:
    AlertStore &m_store;
};
