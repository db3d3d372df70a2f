// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/HistoryViewDays.h"

#include <algorithm>
#include <cmath>

namespace
{
// Far beyond any hour the service keeps (the year 33658), and small enough
// that the time in milliseconds is exact.
constexpr double latestUsableSeconds = 1e12;
} // namespace

QVector<HistoryViewDays::Reading> HistoryViewDays::readings(const QVector<AQIEntry> &entries, const QTimeZone &zone)
{
    QVector<Reading> usable;
    for (const AQIEntry &entry : entries) {
        if (entry.main.aqi < bestLevel || entry.main.aqi > worstLevel || !(std::abs(entry.dt) < latestUsableSeconds))
            continue;
        const auto milliseconds = static_cast<qint64>(std::llround(entry.dt * 1000));
        usable.append({ QDateTime::fromMSecsSinceEpoch(milliseconds, zone), static_cast<int>(entry.main.aqi) });
    }
    std::stable_sort(usable.begin(), usable.end(), [](const Reading &a, const Reading &b) { return a.time < b.time; });
    return usable;
}

QVector<HistoryViewDays::Day> HistoryViewDays::worstOfEachDay(const QVector<Reading> &readings)
{
    QVector<Day> days;
    for (const Reading &reading : readings) {
        const QDate date = reading.time.date();
        if (days.isEmpty() || days.first().date != date)
            days.prepend({ date, reading.level, reading.time });
        else if (reading.level > days.first().level)
            days.first() = { date, reading.level, reading.time };
    }
    return days;
}
