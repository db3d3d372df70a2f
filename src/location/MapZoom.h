// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/CoordinateRegion.h"

#include <QSizeF>

// The zoom level of a web-Mercator map of 256-pixel tiles at which a viewport
// of the given size in logical pixels shows the whole region and no more than
// it must: the span that needs the wider view decides, the other shows more.
// An empty viewport shows nothing, so it gets the whole world (zoom 0).
double zoomLevelShowing(const CoordinateRegion &region, const QSizeF &viewport);
