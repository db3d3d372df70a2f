// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtLocation 5.15
import QtPositioning 5.15
import Tarnelo 1.0

// The screen's map: OpenStreetMap tiles around the region the view model's
// location manager publishes, the user's position and the searched place's
// pin. While no tile arrives the dot and the pin stand on a plain background.
Map {
    id: map

    property SearchLocationViewModel viewModel
    readonly property var region: map.viewModel.locationManager.region

    // A single tap on the map, not the start of a pan.
    signal tapped()

    plugin: Plugin {
        name: "osm"
        // The osm plugin refuses to start with a custom host that is empty.
        parameters: map.viewModel.tileServer ? [noRepository, userAgent, customHost] : [noRepository, userAgent]
    }
    // The custom host's map type is the last the plugin offers; the street map the first.
    activeMapType: supportedMapTypes[map.viewModel.tileServer ? supportedMapTypes.length - 1 : 0]
    color: Theme.background
    // Each fix and each search publish a region, and each brings the map
    // back to it, also after the user has panned or zoomed away.
    center: map.region.center
    zoomLevel: map.viewModel.zoomLevel(map.region, Qt.size(map.width, map.height))

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
        value: map.viewModel.tileServer
    }

    // Inside the map, whose gestures take the press over once it pans.
    MouseArea {
        anchors.fill: parent
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
