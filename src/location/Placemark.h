// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGeoCoordinate>
#include <QString>

#include <optional>

// A place as a geocoder names it; any part may be unknown.
struct Placemark {
    std::optional<QString> name;
    std::optional<QString> thoroughfare;
    std::optional<QString> locality;
    std::optional<QString> administrativeArea;
    std::optional<QString> postalCode;
    std::optional<QString> country;
    std::optional<QGeoCoordinate> location;
};
