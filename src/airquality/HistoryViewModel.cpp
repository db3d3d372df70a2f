// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/HistoryViewModel.h"

#include "airquality/HistoryViewDateFormat.h"
#include "service/BackendQuery.h"
#include "service/PollutionHistoryClient.h"

#include <QLocale>
#include <QPointF>

HistoryViewModel::HistoryViewModel(QObject *parent)
    : QObject(parent)
    , m_locationManager(new LocationManagerDays(this))
    , m_client(new PollutionHistoryClient(this))
{
    connect(m_locationManager, &GeocodingProvider::townNameChanged, this, &HistoryViewModel::titleChanged);
    connect(m_locationManager, &LocationProvider::currentLocationChanged, this, &HistoryViewModel::requestAtFirstPosition);
    connect(m_client, &PollutionHistoryClient::entriesReceived, this, &HistoryViewModel::showEntries);
    connect(m_client, &PollutionHistoryClient::failed, this, [this] { setState(State::Failed); });
}

QString HistoryViewModel::title() const
{
    const QString town = m_locationManager->townName();
    return town.isEmpty() ? QStringLiteral("Past 7 days") : QStringLiteral("Past 7 days in ") + town;
}

QVariantList HistoryViewModel::days() const
{
    const QLocale locale;
    const QString dateFormat = axisDateFormat();
    const QString timeFormat = secondlessTimeFormat(locale.timeFormat(QLocale::ShortFormat));
    QVariantList rows;
    for (const HistoryViewDays::Day &day : m_days) {
        rows.append(QVariantMap { { QStringLiteral("dayName"), locale.dayName(day.date.dayOfWeek()) },
                                  { QStringLiteral("date"), locale.toString(day.date, dateFormat) },
                                  { QStringLiteral("level"), day.level },
                                  { QStringLiteral("peak"), locale.toString(day.peak.time(), timeFormat) } });
    }
    return rows;
}

QDateTime HistoryViewModel::chartStart() const
{
    return m_readings.isEmpty() ? QDateTime() : m_readings.first().time.date().startOfDay(m_readings.first().time.timeZone());
}

int HistoryViewModel::chartDays() const
{
    return m_readings.isEmpty() ? 0 : static_cast<int>(m_readings.first().time.date().daysTo(m_readings.last().time.date())) + 1;
}

QString HistoryViewModel::axisDateFormat() const
{
    return yearlessDateFormat(QLocale().dateFormat(QLocale::ShortFormat));
}

QStringList HistoryViewModel::levelNames() const
{
    return { QStringLiteral("Good"), QStringLiteral("Fair"), QStringLiteral("Moderate"), QStringLiteral("Poor"), QStringLiteral("Very Poor") };
}

void HistoryViewModel::fillSeries(QtCharts::QXYSeries *series) const
{
    if (!series)
        return;
    // One replace redraws once; appending point by point would redraw 169 times.
    QVector<QPointF> points;
    points.reserve(m_readings.size());
    for (const HistoryViewDays::Reading &reading : m_readings)
        points.append({ static_cast<qreal>(reading.time.toMSecsSinceEpoch()), static_cast<qreal>(reading.level) });
    series->replace(points);
}

void HistoryViewModel::retry()
{
    if (m_state == State::Failed)
        request();
}

void HistoryViewModel::showEntries(const QVector<AQIEntry> &entries)
{
    m_readings = HistoryViewDays::readings(entries, QTimeZone::systemTimeZone());
    m_days = HistoryViewDays::worstOfEachDay(m_readings);
    Q_EMIT readingsChanged();
    setState(m_readings.isEmpty() ? State::Empty : State::Ready);
}

void HistoryViewModel::requestAtFirstPosition()
{
    const auto &location = m_locationManager->currentLocation();
    if (!location || !m_latitude.isNull())
        return;
    m_latitude = coordinateText(location->coordinate().latitude());
    m_longitude = coordinateText(location->coordinate().longitude());
    request();
}

void HistoryViewModel::request()
{
    setState(State::Loading);
    m_client->fetchHistory(m_latitude, m_longitude);
}

void HistoryViewModel::setState(State state)
{
    if (m_state == state)
        return;
    m_state = state;
    Q_EMIT stateChanged();
}
