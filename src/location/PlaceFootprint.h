// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtMath>

#include <algorithm>
#include <cmath>

// How far from its centre a place's built-up area roughly reaches, in metres:
// the radius of a disc holding its population at a typical urban density of
// 5,000 people per km². A point inside that disc is taken to be in the place,
// so a point in Paris's 18th arrondissement is Paris, not the centre of the
// smaller Saint-Ouen that happens to be nearer. Hamlets' discs are tiny, so
// away from towns the nearest place still names a point.
inline double placeFootprintRadius(qint64 population)
{
    constexpr double peoplePerSquareMetre = 5000.0 / 1e6;
    return std::sqrt(double(std::max<qint64>(population, 0)) / (M_PI * peoplePerSquareMetre));
}
