// SPDX-License-Identifier: GPL-3.0-or-later
// Paints the offline map's tiles, levels 0 to <deepest-level>, from the shapes
// build-tile-shapes.mjs gathers, as <tiles-dir>/<level>/<x>/<y>.png. Usage:
//   tarnelo-tile-painter <shapes.json> <tiles-dir> <deepest-level>
#include "TilePainter.h"

#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>
#include <QtConcurrent>

#include <atomic>
#include <cstdio>

namespace
{
struct TileAddress {
    int zoom, x, y;
};

int fail(const QString &what)
{
    std::fprintf(stderr, "tarnelo-tile-painter: %s\n", qPrintable(what));
    return 1;
}

// Every tile of every level, and the level/x directories they go in.
QVector<TileAddress> allTiles(int deepestLevel, const QDir &root)
{
    QVector<TileAddress> tiles;
    for (int zoom = 0; zoom <= deepestLevel; ++zoom) {
        const int side = 1 << zoom;
        for (int x = 0; x < side; ++x) {
            root.mkpath(QStringLiteral("%1/%2").arg(zoom).arg(x));
            for (int y = 0; y < side; ++y)
                tiles.append({ zoom, x, y });
        }
    }
    return tiles;
}
} // namespace

int main(int argc, char *argv[])
{
    // A build step: it paints into images and never shows a window.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    bool levelIsNumber = false;
    const int deepestLevel = argc == 4 ? QString::fromLocal8Bit(argv[3]).toInt(&levelIsNumber) : -1;
    if (!levelIsNumber || deepestLevel < 0 || deepestLevel > 12)
        return fail(QStringLiteral("usage: tarnelo-tile-painter <shapes.json> <tiles-dir> <deepest-level 0-12>"));

    QString error;
    std::optional<WorldShapes> shapes = readWorldShapes(QFile::decodeName(argv[1]), &error);
    if (!shapes)
        return fail(error);
    const TilePainter painter(std::move(*shapes), deepestLevel);

    // Painted aside and renamed at the end, so that a failed run leaves
    // nothing that looks finished to the build.
    const QString target = QFile::decodeName(argv[2]);
    QDir partial(target + QStringLiteral(".partial"));
    partial.removeRecursively();
    const QVector<TileAddress> tiles = allTiles(deepestLevel, partial);
    std::atomic<int> failures { 0 };
    QtConcurrent::blockingMap(tiles, [&](const TileAddress &tile) {
        QImageWriter writer(partial.filePath(QStringLiteral("%1/%2/%3.png").arg(tile.zoom).arg(tile.x).arg(tile.y)), "png");
        // The smallest files: best compression, which these flat images take quickly.
        writer.setQuality(0);
        if (!writer.write(painter.paint(tile.zoom, tile.x, tile.y))) {
            std::fprintf(stderr, "tarnelo-tile-painter: %s: %s\n", qPrintable(writer.fileName()), qPrintable(writer.errorString()));
            ++failures;
        }
    });
    if (failures > 0)
        return fail(QStringLiteral("%1 of %2 tiles not written").arg(failures).arg(tiles.size()));
    QDir(target).removeRecursively();
    if (!QDir().rename(partial.path(), target))
        return fail(QStringLiteral("cannot rename %1 to %2").arg(partial.path(), target));
    std::printf("%d tiles, levels 0 to %d\n", tiles.size(), deepestLevel);
    return 0;
}
