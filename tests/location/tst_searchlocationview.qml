// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtLocation 5.15
import QtTest 1.15

// The map screen as a person uses it: a place typed and searched for, the
// sheet about it, and the map behind.
Item {
    id: window
    width: 390
    height: 844

    property var view

    TestCase {
        name: "SearchLocationView"
        when: windowShown

        function find(name) {
            return findChild(window.view, name);
        }

        function waitForSheet(shown) {
            tryVerify(() => window.view.sheetOffset === (shown ? 0 : 1), 3000);
        }

        // The search button and Return search, a tap on the map puts the
        // keyboard away, and the map and the sheet follow the model.
        function test_searchShowsThePlaceOnTheSheetAndTheMap() {
            warnings.restart();
            window.view = Qt.createComponent("qrc:/qml/SearchLocationView.qml").createObject(window, { width: 390, height: 844 });
            const map = find("map");
            tryVerify(() => find("userDot").visible, 2000);
            compare(map.activeMapType.style, MapType.CustomMap, "the shipped tiles");

            mouseClick(find("searchField"));
            verify(window.view.model.isSearchFieldFocused, "a tap into the field brings the keyboard");
            for (const character of "Mombasa")
                keyClick(character);
            mouseClick(window.view, 195, 600);
            verify(!find("searchField").activeFocus);
            mouseClick(find("searchButton"));
            waitForSheet(true);
            compare(find("placeAirTitle").text, "Air at Mombasa");
            const place = window.view.model.searchedLocationCoordinate;
            compare(find("pin").coordinate, place);
            fuzzyCompare(map.center.latitude, place.latitude, 1e-6);
            // On a phone held upright the region's 0.05° span fits the width.
            fuzzyCompare(map.visibleRegion.boundingGeoRectangle().width, 0.05, 1e-4);

            mouseClick(find("closeButton"));
            waitForSheet(false);
            mouseClick(find("searchField"));
            keyClick(Qt.Key_Return);
            waitForSheet(true);
            verify(!find("searchField").activeFocus, "the keyboard has gone");
            window.view.destroy();
            wait(0);
            compare(warnings.count(), 0, "nothing printed a warning");
        }
    }
}
