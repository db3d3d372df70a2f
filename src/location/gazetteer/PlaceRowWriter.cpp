// SPDX-License-Identifier: GPL-3.0-or-later
#include "PlaceRowWriter.h"

#include "location/GeoBounds.h"
#include "location/PlaceFootprint.h"
#include "location/PlaceNameFolding.h"

#include <sqlite3.h>

namespace
{
bool stepOnce(sqlite3_stmt *statement)
{
    const bool done = sqlite3_step(statement) == SQLITE_DONE;
    sqlite3_reset(statement);
    return done;
}

qint64 insertedId(sqlite3_stmt *statement)
{
    return sqlite3_last_insert_rowid(sqlite3_db_handle(statement));
}
} // namespace

PlaceRowWriter::PlaceRowWriter(const GazetteerDatabase &db)
    : m_country(db.prepare("INSERT OR IGNORE INTO countries VALUES (?, ?, ?)"))
    , m_region(db.prepare("INSERT INTO regions(name, folded) VALUES (?, ?)"))
    , m_place(db.prepare("INSERT INTO places(name, folded, latitude, longitude, population, country, region) VALUES (?, ?, ?, ?, ?, ?, ?)"))
    , m_footprint(db.prepare("INSERT INTO place_footprints VALUES (?, ?, ?, ?, ?)"))
{
}

bool PlaceRowWriter::add(const QStringList &fields)
{
    const QString &countryCode = fields.at(4);
    if (!insertTexts(m_country.get(), { countryCode, fields.at(5), foldPlaceName(fields.at(5)) }))
        return false;
    sqlite3_stmt *place = m_place.get();
    const QGeoCoordinate centre(fields.at(1).toDouble(), fields.at(2).toDouble());
    const qint64 population = fields.at(3).toLongLong();
    bindText(place, 1, fields.at(0));
    bindText(place, 2, foldPlaceName(fields.at(0)));
    sqlite3_bind_double(place, 3, centre.latitude());
    sqlite3_bind_double(place, 4, centre.longitude());
    sqlite3_bind_int64(place, 5, population);
    bindText(place, 6, countryCode);
    if (const std::optional<qint64> region = regionId(countryCode, fields.at(6)))
        sqlite3_bind_int64(place, 7, *region);
    else
        sqlite3_bind_null(place, 7);
    if (!stepOnce(place))
        return false;
    // A footprint across the antimeridian keeps only its part around the
    // centre; a few outlying metres of island towns are not worth a second row.
    const GeoBox box = boxesAround(centre, placeFootprintRadius(population)).constFirst();
    sqlite3_stmt *footprint = m_footprint.get();
    sqlite3_bind_int64(footprint, 1, insertedId(place));
    int column = 2;
    for (const double edge : { box.south, box.north, box.west, box.east })
        sqlite3_bind_double(footprint, column++, edge);
    return stepOnce(footprint);
}

bool PlaceRowWriter::insertTexts(sqlite3_stmt *statement, const QStringList &values)
{
    for (int i = 0; i < values.size(); ++i)
        bindText(statement, i + 1, values.at(i));
    return stepOnce(statement);
}

// Regions are told apart by country too: many countries have a "Central" region.
std::optional<qint64> PlaceRowWriter::regionId(const QString &countryCode, const QString &name)
{
    if (name.isEmpty())
        return std::nullopt;
    const QString key = countryCode + QLatin1Char('\t') + name;
    auto known = m_regionIds.constFind(key);
    if (known == m_regionIds.constEnd()) {
        if (!insertTexts(m_region.get(), { name, foldPlaceName(name) }))
            return std::nullopt;
        known = m_regionIds.insert(key, insertedId(m_region.get()));
    }
    return *known;
}
