// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "airquality/HistoryViewDays.h"
#include "location/GeocodingProvider.h"

#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QXYSeries>

class PollutionHistoryClient;

// The history screen: the hourly index of the past seven days at the user's
// first position, as a line over the week and the worst level of each day.
// It asks once; after a failure only the user asks again.
class HistoryViewModel : public QObject
{
    Q_OBJECT
    // Names the town the title shows.
    Q_PROPERTY(GeocodingProvider *locationManager READ locationManager CONSTANT)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    // Newest first, each with "dayName", "date" and "peak" (the local hour the
    // day first reached its worst) as the user's locale writes them, and "level".
    Q_PROPERTY(QVariantList days READ days NOTIFY readingsChanged)
    // The chart starts at the local midnight before the first reading and
    // covers chartDays whole days, the last reading's day the last of them.
    Q_PROPERTY(QDateTime chartStart READ chartStart NOTIFY readingsChanged)
    Q_PROPERTY(int chartDays READ chartDays NOTIFY readingsChanged)
    // The locale's short date format without the year, for the chart's days.
    Q_PROPERTY(QString axisDateFormat READ axisDateFormat CONSTANT)
    // The words for levels 1 to 5.
    Q_PROPERTY(QStringList levelNames READ levelNames CONSTANT)

public:
    enum class State { Loading, Ready, Empty, Failed };
    Q_ENUM(State)

    explicit HistoryViewModel(QObject *parent = nullptr);

    LocationManagerDays *locationManager() const { return m_locationManager; }
    QString title() const;
    State state() const { return m_state; }
    QVariantList days() const;
    QDateTime chartStart() const;
    int chartDays() const;
    QString axisDateFormat() const;
    QStringList levelNames() const;

    // Puts the readings into the series (time in milliseconds, level), oldest
    // first, replacing whatever it held.
    Q_INVOKABLE void fillSeries(QtCharts::QXYSeries *series) const;
    // Asks again after a failure; does nothing in any other state.
    Q_INVOKABLE void retry();

    // What the service answered. Public so that a measurement can fill the
    // screen without a service.
    void showEntries(const QVector<AQIEntry> &entries);

Q_SIGNALS:
    void titleChanged();
    void stateChanged();
    void readingsChanged();

private:
    void requestAtFirstPosition();
    void request();
    void setState(State state);

    LocationManagerDays *m_locationManager;
    PollutionHistoryClient *m_client;
    QString m_latitude;
    QString m_longitude;
    State m_state = State::Loading;
    QVector<HistoryViewDays::Reading> m_readings;
    QVector<HistoryViewDays::Day> m_days;
};
