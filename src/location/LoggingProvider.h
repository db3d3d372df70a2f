// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/LocationProvider.h"

// A provider that prints every position it publishes, and why it gets none.
class LoggingProvider : public LocationProvider
{
    Q_OBJECT

public:
    explicit LoggingProvider(QObject *parent = nullptr);

private:
    void authorizationRefused() override;
    void didUpdateLocations(const QList<QGeoPositionInfo> &locations) override;
    void didFailWithError(const QString &description) override;
};

// The weather panel's, the map sheet's and the health tips' providers: one
// behaviour under the names their screens know them by.
using LocationManagerFunss = LoggingProvider;
using LocationManagerFunz = LoggingProvider;
using LocationManagerFun = LoggingProvider;
