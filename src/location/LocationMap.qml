// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQml 2.15
import QtLocation 5.15
import QtPositioning 5.15
import Tarnelo 1.0

// The screen's map: tiles from the server TARNELO_TILES names, or else the
// tiles shipped with the app, around the region the view model's location
// manager publishes, the user's position and the searched place's pin. While
// no tile arrives the dot and the pin stand on a plain background.
Map {
    id: map

    property SearchLocationViewModel viewModel
    readonly property var region: map.viewModel.locationManager.region
    readonly property var tiles: map.viewModel.tiles

    // A single tap on the map, not the start of a pan.
    signal tapped()

    plugin: Plugin {
        name: "osm"
        // The osm plugin refuses to start with a custom host that is empty.
        parameters: !map.tiles.host ? [noRepository, userAgent]
                    : map.tiles.shipped ? [noRepository, userAgent, customHost, shippedCopyright, shippedCache, noDiskCache]
                    : [noRepository, userAgent, customHost]
    }
    // The custom host's map type is the last the plugin offers; the street map the first.
    activeMapType: supportedMapTypes[map.tiles.host ? supportedMapTypes.length - 1 : 0]
    color: Theme.background
    // Each fix and each search publish a region, and each brings the map
    // back to it, also after the user has panned or zoomed away.
    center: map.region.center
    zoomLevel: map.viewModel.zoomLevel(map.region, Qt.size(map.width, map.height))
    // Past the shipped tiles' deepest level the map would be blank: no pinch
    // goes there (and the view model's zoom levels stop there too).
    Binding on maximumZoomLevel {
        when: map.tiles.shipped
        value: map.tiles.deepestLevel
        restoreMode: Binding.RestoreBindingOrValue
    }

    // Opened on a given place and zoom level, e.g. for a screenshot, the map
    // stays there: the bindings above give way.
    Component.onCompleted: {
        const camera = map.viewModel.cameraAtStart;
        if (camera) {
            map.center = camera.center;
            map.zoomLevel = camera.zoomLevel;
        }
    }

    PluginParameter {
        id: noRepository
        name: "osm.mapping.providersrepository.disabled"
        value: true
    }
    PluginParameter {
        id: userAgent
        name: "osm.useragent"
        value: "Tarnelo"
    }
    PluginParameter {
        id: customHost
        name: "osm.mapping.custom.host"
        value: map.tiles.host
    }
    PluginParameter {
        id: shippedCopyright
        name: "osm.mapping.copyright"
        value: map.tiles.copyright
    }
    PluginParameter {
        id: shippedCache
        name: "osm.mapping.cache.directory"
        value: map.tiles.cacheDirectory
    }
    // The shipped tiles are on disk already; a copy in the cache would only
    // go stale when they change. No tile fits in one byte; 0 means the default.
    PluginParameter {
        id: noDiskCache
        name: "osm.mapping.cache.disk.size"
        value: "1"
    }

    // Inside the map, whose gestures take the press over once it pans.
    // Not a control: a tap on the map only lets go of the search field.
    MouseArea {
        anchors.fill: parent
        Accessible.ignored: true
        onClicked: map.tapped()
    }

    MapQuickItem {
        objectName: "userDot"
        coordinate: map.viewModel.locationManager.userLocation
        visible: coordinate.isValid
        anchorPoint.x: dot.width / 2
        anchorPoint.y: dot.height / 2
        sourceItem: Rectangle {
            id: dot
            width: 18
            height: 18
            radius: 9
            color: Theme.blue
            border.color: Theme.white
            border.width: 3
        }
    }

    MapItemView {
        model: map.viewModel.pins
        delegate: MapQuickItem {
            objectName: "pin"
            coordinate: modelData.coordinate
            // The symbol's pin points at its ring's centre, 19/24 of the way down.
            anchorPoint.x: pinSymbol.width / 2
            anchorPoint.y: pinSymbol.height * 19 / 24
            sourceItem: SymbolIcon {
                id: pinSymbol
                name: "mappin.and.ellipse.circle.fill"
                color: Theme.blue
                size: 44
            }
        }
    }
}
