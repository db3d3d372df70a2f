// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/CoordinateRegion.h"

#include <QSizeF>
#include <QString>

// The zoom level of a web-Mercator map of 256-pixel tiles at which a viewport
// of the given size in logical pixels shows the whole region and no more than
// it must: the span that needs the wider view decides, the other shows more.
// An empty viewport shows nothing, so it gets the whole world (zoom 0).
double zoomLevelShowing(const CoordinateRegion &region, const QSizeF &viewport);

// The deepest zoom level of the tiles laid out as <level>/<x>/<y>.png in the
// directory: a map drawn from them alone goes blank past it, so it is as deep
// as such a map may zoom. -1 when the directory holds no level.
int deepestTileLevel(const QString &tileDirectory);

// The zoom level wanted, but no deeper than the tiles' deepest level when
// they have one (0 or more): the map sets a level it is given as it is, even
// past its own maximum, and would go blank there.
double zoomLevelWithinTiles(double wanted, int deepestLevel);
