// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/PositionedPanel.h"

#include "location/PositionSetting.h"
#include "service/BackendQuery.h"

#include <QTimer>

PositionedPanel::PositionedPanel(BackendScript script, QObject *parent)
    : QObject(parent)
    , m_script(script)
{
    // Until the panels have position providers of their own, a fixed position
    // from the environment is shown as soon as the panel is up.
    const PositionSetting setting = PositionSetting::fromEnvironment();
    if (setting.source == PositionSetting::Source::Fixed)
        QTimer::singleShot(0, this, [this, at = setting.fixedPosition] { showPosition(at.latitude(), at.longitude()); });
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
