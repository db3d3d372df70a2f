// SPDX-License-Identifier: GPL-3.0-or-later
// How long the offline gazetteer takes to name a point: 10,000 random points,
// each within 10 km of a place drawn at random from the gazetteer (so on land,
// and as dense as the gazetteer where people live), looked up once directly as
// the worker does and once end to end through Geocoder, one after the other.
// Usage: reverse_geocode [gazetteer.sqlite]
#include "location/GazetteerDatabase.h"
#include "location/Geocoder.h"
#include "location/OfflineGazetteer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QRandomGenerator>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace
{
constexpr int pointCount = 10000;
constexpr double maxDistanceFromPlace = 10e3;

QVector<QGeoCoordinate> placeCentres(const QString &path)
{
    const GazetteerDatabase db(path, GazetteerDatabase::Mode::Read);
    const PreparedStatement places = db.prepare("SELECT latitude, longitude FROM places");
    QVector<QGeoCoordinate> centres;
    while (places && sqlite3_step(places.get()) == SQLITE_ROW)
        centres.append(QGeoCoordinate(sqlite3_column_double(places.get(), 0), sqlite3_column_double(places.get(), 1)));
    return centres;
}

QVector<QGeoCoordinate> randomPointsNear(const QVector<QGeoCoordinate> &centres)
{
    // A fixed seed, so that runs compare like with like.
    QRandomGenerator random(20240611);
    QVector<QGeoCoordinate> points;
    for (int i = 0; i < pointCount; ++i) {
        const QGeoCoordinate &centre = centres.at(random.bounded(centres.size()));
        points.append(centre.atDistanceAndAzimuth(random.bounded(maxDistanceFromPlace), random.bounded(360.0)));
    }
    return points;
}

// Microseconds each call took.
QVector<double> timeEach(const QVector<QGeoCoordinate> &points, const std::function<void(const QGeoCoordinate &)> &lookUp)
{
    QVector<double> took;
    QElapsedTimer timer;
    for (const QGeoCoordinate &point : points) {
        timer.start();
        lookUp(point);
        took.append(timer.nsecsElapsed() / 1e3);
    }
    return took;
}

void report(const char *what, QVector<double> took)
{
    std::sort(took.begin(), took.end());
    const auto percentile = [&took](double fraction) { return took.at(std::min<int>(took.size() - 1, int(fraction * took.size()))); };
    std::printf("%-28s median %7.1f µs   p99 %7.1f µs   max %8.1f µs\n", what, percentile(0.5), percentile(0.99), took.constLast());
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QString path = argc > 1 ? QFile::decodeName(argv[1]) : QStringLiteral(TARNELO_GAZETTEER_FILE);
    const QVector<QGeoCoordinate> centres = placeCentres(path);
    QString error;
    const std::unique_ptr<OfflineGazetteer> gazetteer = OfflineGazetteer::open(path, &error);
    if (!gazetteer || centres.isEmpty()) {
        std::fprintf(stderr, "reverse_geocode: cannot read %s: %s\n", qPrintable(path), qPrintable(error));
        return 1;
    }
    std::printf("gazetteer %s: %lld bytes, %d places\n", qPrintable(path), QFileInfo(path).size(), int(centres.size()));
    const QVector<QGeoCoordinate> points = randomPointsNear(centres);

    report("lookup on the worker", timeEach(points, [&gazetteer](const QGeoCoordinate &point) { gazetteer->placeAt(point); }));

    qputenv("TARNELO_GEOCODER", "offline");
    qputenv("TARNELO_GAZETTEER", QFile::encodeName(path));
    Geocoder geocoder;
    report("end to end through Geocoder", timeEach(points, [&geocoder](const QGeoCoordinate &point) {
               QEventLoop untilNamed;
               geocoder.reverseGeocodeLocation(point, [&untilNamed](const QList<Placemark> &, const QString &) { untilNamed.quit(); });
               untilNamed.exec();
           }));
    return 0;
}
