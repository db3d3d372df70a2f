// SPDX-License-Identifier: GPL-3.0-or-later
#include "Antimeridian.h"

#include <cmath>

QPolygonF unwrapped(const QPolygonF &lonLat)
{
    QPolygonF result;
    result.reserve(lonLat.size());
    double turns = 0;
    for (int i = 0; i < lonLat.size(); ++i) {
        if (i > 0)
            turns -= std::round((lonLat[i].x() - lonLat[i - 1].x()) / 360);
        result.append({ lonLat[i].x() + turns * 360, lonLat[i].y() });
    }
    return result;
}

bool goesRoundAPole(const QPolygonF &unwrappedRing)
{
    return !unwrappedRing.isEmpty() && std::abs(unwrappedRing.constLast().x() - unwrappedRing.constFirst().x()) > 180;
}

QVector<double> worldCopyShifts(double west, double east)
{
    QVector<double> shifts;
    for (const double shift : { -360.0, 0.0, 360.0 }) {
        if (west + shift < 180 && east + shift > -180)
            shifts.append(shift);
    }
    return shifts;
}
