// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGeoCoordinate>
#include <QMetaType>
#include <QUuid>

// One pin on the map.
struct MapLocation {
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(QGeoCoordinate coordinate MEMBER coordinate)

public:
    // Every value is a pin of its own, even at the same coordinate.
    QUuid id = QUuid::createUuid();
    QGeoCoordinate coordinate;
};
Q_DECLARE_METATYPE(MapLocation)
