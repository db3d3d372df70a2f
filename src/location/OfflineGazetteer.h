// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/GazetteerDatabase.h"
#include "location/Placemark.h"

#include <QList>

#include <memory>
#include <optional>

// The shipped gazetteer of populated places, looked up synchronously. Like its
// connection, it serves one thread at a time.
class OfflineGazetteer
{
public:
    // Nothing for a file that is missing or is no gazetteer; `error` then says why.
    static std::unique_ptr<OfflineGazetteer> open(const QString &path, QString *error);

    // The place that names a point: the one whose footprint the point is most
    // deeply inside, or else the nearest place, however far. Nothing only for
    // an empty gazetteer.
    std::optional<Placemark> placeAt(const QGeoCoordinate &point);
    // Places whose names start with the address's first comma-separated part:
    // those in a country or region a later part names first, then exact names
    // before longer ones, then the most populous; at most `limit` of them.
    QList<Placemark> placesNamed(const QString &address, int limit);

private:
    explicit OfflineGazetteer(const QString &path);

    GazetteerDatabase m_db;
    PreparedStatement m_placesAround;
    PreparedStatement m_placesNamed;
};
