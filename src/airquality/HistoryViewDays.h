// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/AQIResponse.h"

#include <QDate>
#include <QDateTime>
#include <QTimeZone>
#include <QVector>

// How the history view reads the service's hourly entries: the readings it
// can draw, and the worst level of each day as the user's clock divides them.
namespace HistoryViewDays
{
// The service's scale, from "Good" to "Very Poor".
constexpr int bestLevel = 1;
constexpr int worstLevel = 5;

struct Reading {
    QDateTime time; // in the zone the days are counted in
    int level;
};

struct Day {
    QDate date;
    int level; // the worst of the day
    QDateTime peak; // the first reading of the day at that level
};

// The entries with a level on the scale and a usable time, oldest first, with
// their times in `zone`. Others cannot be drawn on the scale and are left out.
QVector<Reading> readings(const QVector<AQIEntry> &entries, const QTimeZone &zone);

// One day for each date the readings (oldest first) fall on, newest first.
QVector<Day> worstOfEachDay(const QVector<Reading> &readings);
} // namespace HistoryViewDays
