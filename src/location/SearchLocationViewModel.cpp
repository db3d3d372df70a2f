// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/SearchLocationViewModel.h"

#include "location/Geocoder.h"
#include "location/MapZoom.h"

#include <QTimer>

#include <utility>

namespace
{
std::optional<MapCamera> nextCamera;
QString nextSearch;
} // namespace

SearchLocationViewModel::SearchLocationViewModel(QObject *parent)
    : QObject(parent)
    , m_locationManager(new LocationManager(this))
    , m_deviceLocation(new LocationManagerFunz(this))
    , m_tiles(MapTiles::forThisRun())
    , m_cameraAtStart(std::exchange(nextCamera, std::nullopt))
{
    if (LocationService::locationServicesEnabled())
        m_locationManager->startUpdatingLocation();
    if (!nextSearch.isEmpty()) {
        setSearchQuery(std::exchange(nextSearch, QString()));
        // Once the screen is built, so that it sees the place arrive.
        QTimer::singleShot(0, this, &SearchLocationViewModel::search);
    }
}

void SearchLocationViewModel::setSearchQuery(const QString &query)
{
    if (m_searchQuery == query)
        return;
    m_searchQuery = query;
    Q_EMIT searchQueryChanged();
}

void SearchLocationViewModel::setBottomSheetVisible(bool visible)
{
    if (m_isBottomSheetVisible == visible)
        return;
    m_isBottomSheetVisible = visible;
    Q_EMIT isBottomSheetVisibleChanged();
    Q_EMIT showsBottomSheetChanged();
}

void SearchLocationViewModel::setSearchFieldFocused(bool focused)
{
    if (m_isSearchFieldFocused == focused)
        return;
    m_isSearchFieldFocused = focused;
    Q_EMIT isSearchFieldFocusedChanged();
}

QList<MapLocation> SearchLocationViewModel::mapLocations() const
{
    if (!m_searchedLocationCoordinate)
        return {};
    MapLocation pin;
    pin.coordinate = *m_searchedLocationCoordinate;
    return { pin };
}

void SearchLocationViewModel::search()
{
    if (m_searchQuery.isEmpty())
        return;
    // A geocoder of its own for every search, so that each answer lands when
    // it comes; it goes once it has answered.
    auto *geocoder = new Geocoder(this);
    Q_EMIT geocodingStarted(m_searchQuery);
    geocoder->geocodeAddressString(m_searchQuery, [this, geocoder](const QList<Placemark> &placemarks, const QString &error) {
        geocoder->deleteLater();
        showFirstPlace(placemarks, error);
    });
}

void SearchLocationViewModel::searchNextFor(const QString &query)
{
    nextSearch = query;
}

void SearchLocationViewModel::openNextAt(const MapCamera &camera)
{
    nextCamera = camera;
}

QVariant SearchLocationViewModel::cameraAtStartValue() const
{
    if (!m_cameraAtStart)
        return {};
    MapCamera camera = *m_cameraAtStart;
    camera.zoomLevel = zoomLevelWithinTiles(camera.zoomLevel, m_tiles.deepestLevel);
    return QVariant::fromValue(camera);
}

double SearchLocationViewModel::zoomLevel(const CoordinateRegion &region, const QSizeF &viewport) const
{
    return zoomLevelWithinTiles(zoomLevelShowing(region, viewport), m_tiles.deepestLevel);
}

void SearchLocationViewModel::showFirstPlace(const QList<Placemark> &placemarks, const QString &error)
{
    if (!error.isEmpty() || placemarks.isEmpty())
        return;
    const std::optional<LocationDetails> details = LocationDetails::fromPlacemark(placemarks.constFirst());
    if (!details)
        return;
    const QGeoCoordinate coordinate = *placemarks.constFirst().location;
    m_locationManager->setRegionCenter(coordinate);
    m_searchedLocationCoordinate = coordinate;
    Q_EMIT searchedLocationCoordinateChanged();
    m_locationDetails = details;
    Q_EMIT locationDetailsChanged();
    Q_EMIT showsBottomSheetChanged();
    // The sheet slides up and the keyboard goes, in this order.
    setBottomSheetVisible(true);
    setSearchFieldFocused(false);
}

QVariant SearchLocationViewModel::locationDetailsValue() const
{
    return m_locationDetails ? QVariant::fromValue(*m_locationDetails) : QVariant();
}

QVariant SearchLocationViewModel::searchedLocationCoordinateValue() const
{
    return m_searchedLocationCoordinate ? QVariant::fromValue(*m_searchedLocationCoordinate) : QVariant();
}

QVariantList SearchLocationViewModel::pinValues() const
{
    QVariantList values;
    const QList<MapLocation> pins = mapLocations();
    for (const MapLocation &pin : pins)
        values.append(QVariant::fromValue(pin));
    return values;
}
