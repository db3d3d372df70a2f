// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPolygonF>
#include <QVector>

// Natural Earth's rings keep every longitude within ±180°, so a ring across
// the antimeridian (Chukotka, Fiji, Antarctica) jumps nearly 360° between two
// neighbouring points; drawn as it is, that edge is a stripe across the world.

// The outline in longitude and latitude with every step taken the short way
// round, so that it runs on past ±180° instead of jumping back.
QPolygonF unwrapped(const QPolygonF &lonLat);

// Whether a ring, once unwrapped, goes round a pole: it ends a whole turn
// from where it began.
bool goesRoundAPole(const QPolygonF &unwrappedRing);

// The whole turns of longitude (in degrees: -360, 0 or 360) by which an
// outline spanning west to east must be shifted so that every part of it
// lands inside ±180° in one of the copies.
QVector<double> worldCopyShifts(double west, double east);
