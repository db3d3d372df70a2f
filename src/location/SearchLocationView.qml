// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15
import Tarnelo 1.0

// The map screen: a map that follows the user, a search for places by name
// over it, and a sheet about the place found that slides up from below.
Item {
    id: screen

    readonly property SearchLocationViewModel model: SearchLocationViewModel {}
    // 0 when the sheet is up, 1 when it is below the bottom edge.
    property real sheetOffset: screen.model.showsBottomSheet ? 0 : 1

    // The sheet moves like a critically damped spring of half a second's
    // response: a cubic fitted to 1 - (1 + ωt)e^(-ωt), ω = 2π / 0.5 s, to
    // within 1.5 % of the way; settled after 0.6 s and never past its end.
    Behavior on sheetOffset {
        NumberAnimation {
            duration: 600
            easing.type: Easing.Bezier
            easing.bezierCurve: [0.25, 0.25, 0.11, 1, 1, 1]
        }
    }

    // Qt Location's map starts its plugin as soon as it is built and needs a
    // window by then, but the screen may be built before it has one.
    Loader {
        anchors.fill: parent
        active: screen.Window.window !== null
        sourceComponent: LocationMap {
            objectName: "map"
            viewModel: screen.model
            // The keyboard goes; a tap into the search row never reaches the map.
            onTapped: screen.model.isSearchFieldFocused = false
        }
    }

    SearchBar {
        x: 16
        y: 16
        width: parent.width - 32
        viewModel: screen.model
    }

    PlaceAirCardModel {
        id: placeAir
        place: screen.model.locationDetails
        deviceLocation: screen.model.deviceLocation.currentLocation
    }

    // Loaded only while in view, which it is only once a search found a place.
    Loader {
        objectName: "bottomSheet"
        y: screen.sheetOffset * screen.height
        width: screen.width
        height: screen.height
        active: screen.sheetOffset < 1
        sourceComponent: BottomSheetView {
            details: screen.model.locationDetails
            onClose: screen.model.isBottomSheetVisible = false
        }
    }

    // The air at the place found, above the dimmed map, coming and going with the sheet.
    Loader {
        objectName: "placeAirCard"
        x: 16
        y: 72 - (screen.sheetOffset * (72 + (item ? item.height : 0)))
        width: screen.width - 32
        active: screen.sheetOffset < 1
        sourceComponent: PlaceAirCard {
            model: placeAir
        }
    }
}
