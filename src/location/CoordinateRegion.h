// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGeoCoordinate>
#include <QMetaType>

// The part of the map in view: a centre and how many degrees it spans.
struct CoordinateRegion {
    Q_GADGET
    Q_PROPERTY(QGeoCoordinate center MEMBER center)
    Q_PROPERTY(double latitudeDelta MEMBER latitudeDelta)
    Q_PROPERTY(double longitudeDelta MEMBER longitudeDelta)

public:
    QGeoCoordinate center;
    double latitudeDelta = 0;
    double longitudeDelta = 0;
};
Q_DECLARE_METATYPE(CoordinateRegion)
