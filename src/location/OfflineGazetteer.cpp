// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/OfflineGazetteer.h"

#include "location/GeoBounds.h"
#include "location/PlaceFootprint.h"
#include "location/PlaceNameFolding.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <sqlite3.h>

// Every query reads these columns, in this order, so that readCandidate reads any of them.
#define PLACE_COLUMNS "p.name, p.latitude, p.longitude, p.population, r.name, c.name"
#define PLACE_JOINS "JOIN countries c ON c.code = p.country LEFT JOIN regions r ON r.id = p.region"

namespace
{
const char placesAroundSql[] = "SELECT " PLACE_COLUMNS " FROM place_footprints f JOIN places p ON p.id = f.id " PLACE_JOINS
                               " WHERE f.north >= ?1 AND f.south <= ?2 AND f.east >= ?3 AND f.west <= ?4";
// char(1114111), the highest code point, ends the range of names that start
// with the searched one, so the name index serves prefix searches.
const char placesNamedSql[] = "SELECT " PLACE_COLUMNS " FROM places p " PLACE_JOINS " WHERE p.folded >= ?1 AND p.folded < ?1 || char(1114111)"
                              " ORDER BY EXISTS (SELECT 1 FROM json_each(?2) q WHERE q.value IN (c.folded, lower(c.code), r.folded)) DESC,"
                              " p.folded = ?1 DESC, p.population DESC LIMIT ?3";

// Most points have a place within ten kilometres; the search widens from
// there until it has covered the whole sphere.
constexpr double firstSearchRadius = 10e3;
constexpr double searchWidening = 4;
constexpr double halfCircumference = 20.1e6;

struct Candidate {
    Placemark placemark;
    qint64 population;
};

Candidate readCandidate(sqlite3_stmt *row)
{
    Placemark placemark;
    placemark.name = columnText(row, 0);
    placemark.locality = placemark.name;
    placemark.location = QGeoCoordinate(sqlite3_column_double(row, 1), sqlite3_column_double(row, 2));
    placemark.administrativeArea = columnText(row, 4);
    placemark.country = columnText(row, 5);
    return { placemark, sqlite3_column_int64(row, 3) };
}

// Footprints outrank distance: inside a footprint the point belongs to that
// place, even where a smaller place's centre is nearer.
const Candidate *namingCandidate(const QGeoCoordinate &point, const QVector<Candidate> &candidates, double searchRadius)
{
    const Candidate *inside = nullptr;
    double depth = 1;
    const Candidate *nearest = nullptr;
    double nearestDistance = searchRadius;
    for (const Candidate &candidate : candidates) {
        const double distance = point.distanceTo(*candidate.placemark.location);
        const double relative = distance / placeFootprintRadius(candidate.population);
        if (relative <= depth) {
            depth = relative;
            inside = &candidate;
        }
        if (distance <= nearestDistance) {
            nearestDistance = distance;
            nearest = &candidate;
        }
    }
    return inside ? inside : nearest;
}
} // namespace

OfflineGazetteer::OfflineGazetteer(const QString &path)
    : m_db(path, GazetteerDatabase::Mode::Read)
    , m_placesAround(m_db.prepare(placesAroundSql))
    , m_placesNamed(m_db.prepare(placesNamedSql))
{
}

std::unique_ptr<OfflineGazetteer> OfflineGazetteer::open(const QString &path, QString *error)
{
    std::unique_ptr<OfflineGazetteer> gazetteer(new OfflineGazetteer(path));
    if (gazetteer->m_placesAround && gazetteer->m_placesNamed)
        return gazetteer;
    *error = gazetteer->m_db.errorText();
    return nullptr;
}

std::optional<Placemark> OfflineGazetteer::placeAt(const QGeoCoordinate &point)
{
    sqlite3_stmt *query = m_placesAround.get();
    for (double radius = firstSearchRadius;; radius *= searchWidening) {
        QVector<Candidate> candidates;
        for (const GeoBox &box : boxesAround(point, radius)) {
            int parameter = 1;
            for (const double edge : { box.south, box.north, box.west, box.east })
                sqlite3_bind_double(query, parameter++, edge);
            while (sqlite3_step(query) == SQLITE_ROW)
                candidates.append(readCandidate(query));
            sqlite3_reset(query);
        }
        if (const Candidate *chosen = namingCandidate(point, candidates, radius)) {
            Placemark placemark = chosen->placemark;
            placemark.location = point;
            return placemark;
        }
        if (radius > halfCircumference)
            return std::nullopt;
    }
}

QList<Placemark> OfflineGazetteer::placesNamed(const QString &address, int limit)
{
    const QStringList parts = address.split(QLatin1Char(','));
    const QString name = foldPlaceName(parts.constFirst());
    if (name.isEmpty())
        return {};
    QJsonArray qualifiers;
    for (auto part = parts.cbegin() + 1; part != parts.cend(); ++part)
        qualifiers.append(foldPlaceName(*part));
    sqlite3_stmt *query = m_placesNamed.get();
    bindText(query, 1, name);
    bindText(query, 2, QString::fromUtf8(QJsonDocument(qualifiers).toJson(QJsonDocument::Compact)));
    sqlite3_bind_int(query, 3, limit);
    QList<Placemark> places;
    while (sqlite3_step(query) == SQLITE_ROW)
        places.append(readCandidate(query).placemark);
    sqlite3_reset(query);
    return places;
}
