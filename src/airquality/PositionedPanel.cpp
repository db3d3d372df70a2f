// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/PositionedPanel.h"

#include "location/LocationProvider.h"
#include "service/BackendQuery.h"

PositionedPanel::PositionedPanel(BackendScript script, LocationProvider *provider, QObject *parent)
    : QObject(parent)
    , m_script(script)
{
    provider->setParent(this);
    connect(provider, &LocationProvider::currentLocationChanged, this, [this, provider] {
        if (const auto &location = provider->currentLocation())
            showPosition(location->coordinate().latitude(), location->coordinate().longitude());
    });
}

void PositionedPanel::showPosition(double latitude, double longitude)
{
    m_searchlat = coordinateText(latitude);
    m_searchlog = coordinateText(longitude);
    Q_EMIT positionChanged();
    const QUrl url = requestUrl(backendRequestText(m_script, { { "lat", m_searchlat }, { "lon", m_searchlog } }));
    if (!url.isEmpty())
        requestReadings(url);
}
