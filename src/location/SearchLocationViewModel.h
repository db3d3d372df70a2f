// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/LocationDetails.h"
#include "location/LocationManager.h"
#include "location/LoggingProvider.h"
#include "location/MapCamera.h"
#include "location/MapLocation.h"
#include "location/MapTiles.h"

#include <QList>
#include <QObject>
#include <QSizeF>
#include <QVariant>

#include <optional>

struct Placemark;

// The map screen: the map follows the device, a search by name pins the place
// it finds and opens a sheet that tells about it.
class SearchLocationViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString searchQuery READ searchQuery WRITE setSearchQuery NOTIFY searchQueryChanged)
    // A LocationDetails, or null until a search finds a place.
    Q_PROPERTY(QVariant locationDetails READ locationDetailsValue NOTIFY locationDetailsChanged)
    Q_PROPERTY(bool isBottomSheetVisible READ isBottomSheetVisible WRITE setBottomSheetVisible NOTIFY isBottomSheetVisibleChanged)
    // A coordinate, or null until a search finds a place.
    Q_PROPERTY(QVariant searchedLocationCoordinate READ searchedLocationCoordinateValue NOTIFY searchedLocationCoordinateChanged)
    Q_PROPERTY(LocationManager *locationManager READ locationManager CONSTANT)
    // The device's own position, for what a search reports beside the place.
    Q_PROPERTY(LoggingProvider *deviceLocation READ deviceLocation CONSTANT)
    Q_PROPERTY(bool isSearchFieldFocused READ isSearchFieldFocused WRITE setSearchFieldFocused NOTIFY isSearchFieldFocusedChanged)
    // MapLocation values.
    Q_PROPERTY(QVariantList pins READ pinValues NOTIFY searchedLocationCoordinateChanged)
    // The sheet is up when it is asked for and has a place to tell about.
    Q_PROPERTY(bool showsBottomSheet READ showsBottomSheet NOTIFY showsBottomSheetChanged)
    // Where the map's tiles come from: TARNELO_TILES, or else the shipped tiles.
    Q_PROPERTY(MapTiles tiles READ tiles CONSTANT)
    // A MapCamera the map opens on instead of following the device, or null.
    Q_PROPERTY(QVariant cameraAtStart READ cameraAtStartValue CONSTANT)

public:
    explicit SearchLocationViewModel(QObject *parent = nullptr);

    QString searchQuery() const { return m_searchQuery; }
    void setSearchQuery(const QString &query);
    std::optional<LocationDetails> locationDetails() const { return m_locationDetails; }
    bool isBottomSheetVisible() const { return m_isBottomSheetVisible; }
    void setBottomSheetVisible(bool visible);
    std::optional<QGeoCoordinate> searchedLocationCoordinate() const { return m_searchedLocationCoordinate; }
    LocationManager *locationManager() const { return m_locationManager; }
    LocationManagerFunz *deviceLocation() const { return m_deviceLocation; }
    bool isSearchFieldFocused() const { return m_isSearchFieldFocused; }
    void setSearchFieldFocused(bool focused);
    // The searched place's pin, if a search found one.
    QList<MapLocation> mapLocations() const;
    bool showsBottomSheet() const { return m_isBottomSheetVisible && m_locationDetails; }
    MapTiles tiles() const { return m_tiles; }
    // Where the next map screen opens, instead of on the device, e.g. for a screenshot.
    static void openNextAt(const MapCamera &camera);
    // What the next map screen looks up as soon as it opens, e.g. for a screenshot.
    static void searchNextFor(const QString &query);

    // Looks the query up as typed, unless there is none.
    Q_INVOKABLE void search();
    // The zoom level at which a map of the viewport's size shows the region,
    // or the tiles' deepest level if that is less deep.
    Q_INVOKABLE double zoomLevel(const CoordinateRegion &region, const QSizeF &viewport) const;

    // Where a search's answer lands: the first place found, if it says where
    // it is, is pinned, centred on and shown in the sheet; anything else
    // changes nothing.
    void showFirstPlace(const QList<Placemark> &placemarks, const QString &error);

Q_SIGNALS:
    void searchQueryChanged();
    void locationDetailsChanged();
    void isBottomSheetVisibleChanged();
    void searchedLocationCoordinateChanged();
    void isSearchFieldFocusedChanged();
    void showsBottomSheetChanged();
    // A search went to the geocoder with this text.
    void geocodingStarted(const QString &query);

private:
    QVariant locationDetailsValue() const;
    QVariant searchedLocationCoordinateValue() const;
    QVariantList pinValues() const;
    QVariant cameraAtStartValue() const;

    QString m_searchQuery;
    std::optional<LocationDetails> m_locationDetails;
    bool m_isBottomSheetVisible = false;
    std::optional<QGeoCoordinate> m_searchedLocationCoordinate;
    LocationManager *m_locationManager;
    LocationManagerFunz *m_deviceLocation;
    bool m_isSearchFieldFocused = false;
    MapTiles m_tiles;
    std::optional<MapCamera> m_cameraAtStart;
};
