// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMetaType>
#include <QString>

#include <optional>

struct Placemark;

// What the map's sheet tells about a place a search found.
struct LocationDetails {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString address MEMBER address)
    Q_PROPERTY(double latitude MEMBER latitude)
    Q_PROPERTY(double longitude MEMBER longitude)
    // The coordinates as the sheet writes them.
    Q_PROPERTY(QString latitudeText READ latitudeText)
    Q_PROPERTY(QString longitudeText READ longitudeText)

public:
    QString name;
    QString address;
    double latitude = 0;
    double longitude = 0;

    QString latitudeText() const;
    QString longitudeText() const;

    // Nothing for a placemark that does not say where it is.
    static std::optional<LocationDetails> fromPlacemark(const Placemark &placemark);
};
Q_DECLARE_METATYPE(LocationDetails)
