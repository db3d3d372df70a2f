// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/AQIResponse.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <optional>

// Asks the OpenWeatherMap air-pollution history service for the hourly index
// of the seven days up to now at a position.
class PollutionHistoryClient : public QObject
{
    Q_OBJECT

public:
    explicit PollutionHistoryClient(QObject *parent = nullptr);

    // Sends one request. The coordinates go into the URL as given. Ends in
    // exactly one of entriesReceived or failed; failed may come before this
    // returns, when no request could be sent at all.
    void fetchHistory(const QString &latitude, const QString &longitude);

    // The request text for a window that starts seven days before `startClock`
    // and ends at `endClock` (seconds since 1970, read one after the other);
    // nothing when a time is not a whole number of seconds that fits.
    static std::optional<QString> requestText(const QString &latitude, const QString &longitude, double startClock, double endClock);

Q_SIGNALS:
    // The decoded entries, on the main thread; never sent after a failure.
    void entriesReceived(const QVector<AQIEntry> &entries);
    // No usable answer: no request could be sent, none came back, or it did
    // not decode.
    void failed();
};
