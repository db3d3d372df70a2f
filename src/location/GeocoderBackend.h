// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/Geocoder.h"

// One way of geocoding behind Geocoder. Completions keep Geocoder's promises:
// later, on the thread that made the backend, and never once it is destroyed.
class GeocoderBackend
{
public:
    virtual ~GeocoderBackend() = default;

    virtual void reverseGeocode(const QGeoCoordinate &location, Geocoder::Completion done) = 0;
    virtual void geocode(const QString &address, Geocoder::Completion done) = 0;
};

// How many places a search returns at most.
constexpr int geocodeResultLimit = 10;
