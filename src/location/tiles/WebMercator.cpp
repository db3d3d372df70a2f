// SPDX-License-Identifier: GPL-3.0-or-later
#include "WebMercator.h"

#include <algorithm>
#include <cmath>

namespace
{
// Where the square ends: the latitude whose Mercator y is ±π.
constexpr double mercatorLimit = 85.05112878;
constexpr double pi = 3.14159265358979323846;
} // namespace

QPointF mercatorPoint(double longitude, double latitude)
{
    const double radians = std::clamp(latitude, -mercatorLimit, mercatorLimit) * pi / 180;
    const double y = std::log(std::tan(pi / 4 + radians / 2));
    return { (longitude + 180) / 360, (1 - y / pi) / 2 };
}
