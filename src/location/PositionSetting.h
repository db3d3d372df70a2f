// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGeoCoordinate>
#include <QString>

#include <optional>

// Where positions come from, as TARNELO_POSITION says: a real device through
// geoclue (the default), an NMEA log replayed in real time, one fixed
// position, a refused authorisation, or no location services at all.
struct PositionSetting {
    enum class Source { Geoclue, Nmea, Fixed, Denied, None };

    Source source = Source::Geoclue;
    QString nmeaFile;
    QGeoCoordinate fixedPosition;

    // Nothing for a text that names no source or a fixed position that is not
    // a valid coordinate.
    static std::optional<PositionSetting> parse(const QString &text);
    // The environment's setting; an unset or unreadable one means geoclue.
    static PositionSetting fromEnvironment();
};
