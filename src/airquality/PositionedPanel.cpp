// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/PositionedPanel.h"

#include "airquality/ReadingAge.h"
#include "location/LocationProvider.h"
#include "service/BackendQuery.h"

PositionedPanel::PositionedPanel(BackendScript script, LocationProvider *provider, QObject *parent)
    : QObject(parent)
    , m_script(script)
{
    m_ageTicks.setInterval(30 * 1000);
    connect(&m_ageTicks, &QTimer::timeout, this, &PositionedPanel::updatedTextChanged);
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
    m_hasPosition = true;
    Q_EMIT positionChanged();
    resend();
}

bool PositionedPanel::resend()
{
    if (!m_hasPosition)
        return false;
    const QUrl url = requestUrl(backendRequestText(m_script, { { "lat", m_searchlat }, { "lon", m_searchlog } }));
    if (url.isEmpty())
        return false;
    requestReadings(url);
    return true;
}

void PositionedPanel::refresh()
{
    m_refreshing = resend();
}

QString PositionedPanel::updatedText() const
{
    if (!m_filledAt.isValid())
        return {};
    return QStringLiteral("Updated ") + ReadingAge::ago(m_filledAt.secsTo(QDateTime::currentDateTimeUtc()));
}

void PositionedPanel::filled()
{
    m_filledAt = QDateTime::currentDateTimeUtc();
    m_ageTicks.start();
    Q_EMIT updatedTextChanged();
}

void PositionedPanel::answered()
{
    m_refreshing = false;
    if (m_refreshProblem.isEmpty())
        return;
    m_refreshProblem.clear();
    Q_EMIT refreshProblemChanged();
}

void PositionedPanel::failed()
{
    if (!m_refreshing)
        return;
    m_refreshing = false;
    m_refreshProblem = QStringLiteral("Could not refresh: the service did not answer");
    Q_EMIT refreshProblemChanged();
}
