// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGeoCoordinate>
#include <QMetaType>
#include <QString>

#include <optional>

// Where the map looks and how closely, for opening it on a given place and
// zoom level instead of on the device, e.g. for a screenshot.
struct MapCamera {
    Q_GADGET
    Q_PROPERTY(QGeoCoordinate center MEMBER center)
    Q_PROPERTY(double zoomLevel MEMBER zoomLevel)

public:
    QGeoCoordinate center;
    double zoomLevel = 0;

    // "latitude,longitude,zoom level"; nothing unless it is a place on Earth
    // and a zoom level of 0 or more.
    static std::optional<MapCamera> fromText(const QString &text);
};
Q_DECLARE_METATYPE(MapCamera)
