// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/Placemark.h"

#include <QGeoLocation>

// A location found by Qt Location's geocoding as a placemark: named by the
// first part of its address text (the most specific thing the server found),
// else its street or district; empty address fields stay unknown.
Placemark placemarkFromGeoLocation(const QGeoLocation &location);
