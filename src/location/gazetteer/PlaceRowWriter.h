// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/GazetteerDatabase.h"

#include <QHash>
#include <QStringList>

// Adds places to a gazetteer being written: each with its folded name, its
// country, its region (stored once per country and name) and its footprint in
// the R*Tree the nearest-place lookup searches.
class PlaceRowWriter
{
public:
    explicit PlaceRowWriter(const GazetteerDatabase &db);

    bool isPrepared() const { return m_country && m_region && m_place && m_footprint; }
    // name, latitude, longitude, population, country code, country name, region name
    bool add(const QStringList &fields);

private:
    bool insertTexts(sqlite3_stmt *statement, const QStringList &values);
    std::optional<qint64> regionId(const QString &countryCode, const QString &name);

    PreparedStatement m_country, m_region, m_place, m_footprint;
    QHash<QString, qint64> m_regionIds;
};
