// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtLocation 5.15
import QtTest 1.15

// The map screen as a person uses it: a place typed and searched for, the
// sheet about it, and the map behind, with the device fixed in central
// Nairobi and a tile server that is never there.
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

        function init() {
            warnings.restart();
            window.view = Qt.createComponent("qrc:/qml/SearchLocationView.qml").createObject(window, { width: 390, height: 844 });
            verify(window.view, "the map screen builds");
        }

        function cleanup() {
            window.view.destroy();
            wait(0);
            compare(warnings.count(), 0, "nothing printed a warning");
        }

        function typeIntoField(text) {
            mouseClick(find("searchField"));
            verify(window.view.model.isSearchFieldFocused, "a tap into the field brings the keyboard");
            for (const character of text)
                keyClick(character);
            compare(window.view.model.searchQuery, text);
        }

        function waitForSheet(shown) {
            tryVerify(() => window.view.sheetOffset === (shown ? 0 : 1), 3000);
        }

        function test_searchShowsThePlaceOnTheSheetAndTheMap() {
            const map = find("map");
            typeIntoField("Nairobi");
            mouseClick(find("searchButton"));
            waitForSheet(true);
            verify(!window.view.model.isSearchFieldFocused);
            verify(!find("searchField").activeFocus, "the keyboard has gone");

            const place = window.view.model.searchedLocationCoordinate;
            fuzzyCompare(place.latitude, -1.28, 0.05);
            fuzzyCompare(place.longitude, 36.82, 0.05);
            compare(find("placeName").text, "Nairobi");
            verify(find("placeAddress").text.endsWith(", Kenya"), find("placeAddress").text);
            compare(find("placeLatitude").text, String(place.latitude));
            compare(find("placeLongitude").text, String(place.longitude));

            const pin = find("pin");
            verify(pin && pin.visible, "the place is pinned");
            compare(pin.coordinate, place);
            const dot = find("userDot");
            tryVerify(() => dot.visible, 2000, "the user's position is shown");
            fuzzyCompare(map.center.latitude, place.latitude, 1e-6);
            fuzzyCompare(map.center.longitude, place.longitude, 1e-6);
            // On a phone held upright the region's 0.05° span fits the width.
            fuzzyCompare(map.visibleRegion.boundingGeoRectangle().width, 0.05, 1e-4);
            verify(map.visibleRegion.boundingGeoRectangle().height > 0.05);
            verify(screenshots.save(window.view, "map-sheet.png"));

            mouseClick(find("closeButton"));
            verify(!window.view.model.isBottomSheetVisible);
            waitForSheet(false);
            verify(!find("placeName"), "the sheet has gone");
            verify(find("pin").visible, "the pin stays");
        }

        function test_returnSearchesAndATapOnTheMapPutsTheKeyboardAway() {
            typeIntoField("Nairobi");
            mouseClick(window.view, 195, 600);
            verify(!window.view.model.isSearchFieldFocused);
            verify(!find("searchField").activeFocus);

            mouseClick(find("searchField"));
            verify(find("searchField").activeFocus);
            keyClick(Qt.Key_Return);
            waitForSheet(true);
            compare(find("placeName").text, "Nairobi");
        }

        function test_theMapFollowsTheDeviceUntilASearch() {
            const map = find("map");
            tryVerify(() => find("userDot").visible, 2000);
            fuzzyCompare(map.center.latitude, -1.2864, 1e-6);
            fuzzyCompare(map.center.longitude, 36.8172, 1e-6);
            compare(find("pin"), null, "no pin before a search");
            compare(map.activeMapType.style, MapType.CustomMap, "the shipped tiles");

            mouseDrag(map, 100, 400, 150, 200);
            verify(Math.abs(map.center.longitude - 36.8172) > 0.005, "the map pans");
            typeIntoField("Mombasa");
            mouseClick(find("searchButton"));
            waitForSheet(true);
            compare(find("placeName").text, "Mombasa");
            fuzzyCompare(map.center.latitude, window.view.model.searchedLocationCoordinate.latitude, 1e-6);
            compare(find("placeAirTitle").text, "Air at Mombasa");
            verify(screenshots.save(window.view, "map-mombasa.png"));
        }
    }
}
