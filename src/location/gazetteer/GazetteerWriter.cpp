// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the offline geocoder's gazetteer from the places file that
// build-gazetteer.mjs gathers. Usage:
//   tarnelo-gazetteer-writer <places.tsv> <gazetteer.sqlite>
#include "PlaceRowWriter.h"

#include <QFile>
#include <QTextStream>

#include <cstdio>

namespace
{
const char schema[] = R"(
CREATE TABLE countries(code TEXT PRIMARY KEY, name TEXT NOT NULL, folded TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE regions(id INTEGER PRIMARY KEY, name TEXT NOT NULL, folded TEXT NOT NULL);
CREATE TABLE places(id INTEGER PRIMARY KEY, name TEXT NOT NULL, folded TEXT NOT NULL, latitude REAL NOT NULL,
                    longitude REAL NOT NULL, population INTEGER NOT NULL, country TEXT NOT NULL, region INTEGER);
CREATE VIRTUAL TABLE place_footprints USING rtree(id, south, north, west, east);
)";
// Built once the rows are in: faster, and denser than an index grown row by row.
const char searchIndex[] = "CREATE INDEX places_by_folded_name ON places(folded)";

int fail(const QString &what)
{
    std::fprintf(stderr, "tarnelo-gazetteer-writer: %s\n", qPrintable(what));
    return 1;
}

// Empty when every line went in; otherwise what stopped it.
QString writePlaces(QFile &places, const GazetteerDatabase &db)
{
    if (!db.execute(schema) || !db.execute("BEGIN"))
        return db.errorText();
    PlaceRowWriter writer(db);
    if (!writer.isPrepared())
        return db.errorText();
    QTextStream lines(&places);
    lines.setCodec("UTF-8");
    for (int lineNumber = 1; !lines.atEnd(); ++lineNumber) {
        const QStringList fields = lines.readLine().split(QLatin1Char('\t'));
        if (fields.size() != 7)
            return QStringLiteral("%1:%2: expected 7 fields").arg(places.fileName()).arg(lineNumber);
        if (!writer.add(fields))
            return QStringLiteral("%1:%2: %3").arg(places.fileName()).arg(lineNumber).arg(db.errorText());
    }
    if (!db.execute(searchIndex) || !db.execute("COMMIT"))
        return db.errorText();
    return {};
}
} // namespace

int main(int argc, char *argv[])
{
    if (argc != 3)
        return fail(QStringLiteral("usage: tarnelo-gazetteer-writer <places.tsv> <gazetteer.sqlite>"));
    QFile places(QFile::decodeName(argv[1]));
    if (!places.open(QIODevice::ReadOnly | QIODevice::Text))
        return fail(places.fileName() + QStringLiteral(": ") + places.errorString());
    // Written aside and renamed at the end, so a failed run leaves no file
    // that looks finished to the build.
    const QString target = QFile::decodeName(argv[2]);
    const QString partial = target + QStringLiteral(".partial");
    QFile::remove(partial);
    const QString failure = writePlaces(places, GazetteerDatabase(partial, GazetteerDatabase::Mode::Create));
    if (!failure.isEmpty())
        return fail(failure);
    QFile::remove(target);
    if (!QFile::rename(partial, target))
        return fail(QStringLiteral("cannot rename %1 to %2").arg(partial, target));
    return 0;
}
