// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import Tarnelo 1.0
import "qrc:/qml"

// The index scale, the dashboard's header with the indoor advice under it
// before and after an unhealthy reading, the tip cards and the health tips
// screen under the navigation bar, on a phone-sized window with the device
// fixed in central Nairobi.
Rectangle {
    id: window
    width: 390
    height: 844
    color: Theme.background

    property var view

    function show(file) {
        window.view = Qt.createComponent("qrc:/qml/" + file).createObject(window, { width: 390, height: 844 });
        return window.view;
    }

    Component {
        id: dashboard
        Column {
            property alias header: header
            property alias indoors: indoors
            x: 16
            y: 16
            width: 358
            spacing: 16
            MainHeaderView {
                id: header
                width: parent.width
            }
            MainIndoorsView {
                id: indoors
                width: parent.width
                outdoorIndex: header.model.txt_aqi
            }
        }
    }

    Component {
        id: tipsScreen
        Item {
            property alias tips: tips
            anchors.fill: parent
            NavigationBar {
                id: bar
                width: parent.width
                z: 1
                title: "Health Tips"
            }
            TipsView {
                id: tips
                anchors.top: bar.bottom
                anchors.bottom: parent.bottom
                width: parent.width
            }
        }
    }

    Component {
        id: tipCards
        Item {
            property alias category: category
            anchors.fill: parent
            NavigationBar {
                id: bar
                width: parent.width
                title: "Home"
            }
            Column {
                anchors.top: bar.bottom
                anchors.topMargin: 16
                x: 16
                width: parent.width - 32
                spacing: 16
                MainCategoryView {
                    id: category
                    width: parent.width
                }
                MainWeatherView {
                    width: parent.width
                }
            }
        }
    }

    TestCase {
        name: "AirQualityScreens"
        when: windowShown

        function init() {
            warnings.restart();
        }

        function cleanup() {
            window.view.destroy();
            wait(0);
            compare(warnings.count(), 0, "nothing printed a warning");
        }

        // The items named prefix + 0, 1, ... in reading order, top to bottom
        // and left to right on screen.
        function onScreen(parent, prefix, count) {
            const items = [];
            for (let i = 0; i < count; ++i)
                items.push(findChild(parent, prefix + i));
            const at = item => item.mapToItem(window, 0, 0);
            return items.sort((a, b) => at(a).y - at(b).y || at(a).x - at(b).x);
        }

        function test_scaleShowsTheSixCategories() {
            const rows = [
                [Theme.green, "Good", "0 - 50", "None"],
                [Theme.yellow, "Moderate", "51 - 100", "Usually sensitive individual should consider limiting prolonged outdoor exertion."],
                [Theme.orange, "Unhealthy for Sensitive Groups", "101 - 150",
                    "Children, active adults, and people with respiratory disease, such as asthma, should limit pronged outdoor exertion."],
                [Theme.red, "Unhealthy", "151 - 200",
                    "Children, active adults, and people with respiratory disease, such as asthma, should avoid outdoor exertion;everyone else should limit prolonged outdoor exertion."],
                [Theme.assetPurple, "Very Unhealthy", "201 - 300", "Heath alert: The risk of health effects is increased for everyone."],
                [Theme.maroon, "Hazardous", "Above 300", "Health warning of emergency conditions: everyone is more likely to be affected."]
            ];
            const scale = show("ScaleView.qml");
            compare(findChild(scale, "title").text, "The AQI Index Scale");
            let previousY = -1;
            rows.forEach((expected, index) => {
                const row = findChild(scale, "row" + index);
                compare(findChild(row, "swatch").color, expected[0]);
                compare(findChild(row, "name").text, expected[1]);
                compare(findChild(row, "range").text, expected[2]);
                compare(findChild(row, "advisory").text, expected[3]);
                verify(row.y > previousY, "row " + index + " is below the one before");
                verify(findChild(row, "advisory").x + findChild(row, "advisory").width <= scale.width, "row " + index + " fits the width");
                previousY = row.y;
            });
            verify(scale.contentHeight > scale.height, "the table is taller than a phone");
        }

        function test_headerShowsTheStatusOfTheReading() {
            const column = dashboard.createObject(window);
            window.view = column;
            const header = column.header;
            const status = findChild(header, "statusBadge");
            compare(findChild(header, "townName").text, "Loading..");
            compare(findChild(header, "todayDate").text, new Date().toLocaleDateString(Qt.locale(), Locale.LongFormat));
            for (const tile of ["CO", "NO", "NO2", "O3", "SO2", "PM2.5", "PM10", "NH3"])
                compare(findChild(header, "tile_" + tile).value, "0");
            const neutralAdvice = findChild(column.indoors, "indoorAdvice").text;

            tryCompare(findChild(header, "aqiStatus"), "text", "Unhealthy", 5000);
            compare(findChild(header, "aqiValue").text, "300");
            tryCompare(status, "color", Theme.red, 2000);
            tryCompare(findChild(header, "townName"), "text", "Nairobi", 5000);
            for (const [tile, value] of [["CO", "230.5"], ["PM2.5", "38.2"], ["NH3", "1.5"]])
                compare(findChild(header, "tile_" + tile).value, value);
            verify(findChild(column.indoors, "indoorAdvice").text !== neutralAdvice, "the indoor advice follows the reading");
        }

        function test_tipsShowTheReadingsInRowsAndTheRecommendations() {
            window.view = tipsScreen.createObject(window);
            const tips = window.view.tips;
            const cards = onScreen(tips, "pollutant_", 8);
            tryCompare(findChild(cards[0], "value"), "text", "230.5 mg/m3", 5000);

            const expected = [["Carbon Monoxide (CO)", "230.5"], ["Nitric Oxide (NO)", "0.4"],
                ["Nitrogen Dioxide (NO2)", "21"], ["Ozone Gas (O3)", "80"],
                ["Sulfur Dioxide (SO2)", "2.1"], ["Ammonia (NH3)", "1.5"],
                ["Particulate Matter (PM10)", "51"], ["Particulate Matter (PM2.5)", "38.2"]];
            expected.forEach(([title, reading], index) => {
                compare(findChild(cards[index], "title").text, title);
                compare(findChild(cards[index], "value").text, reading + " mg/m3");
            });
            for (let row = 0; row < 4; ++row) {
                const [left, right] = [cards[2 * row], cards[2 * row + 1]];
                compare(left.mapToItem(window, 0, 0).y, right.mapToItem(window, 0, 0).y, "row " + row + " holds two cards");
            }
            const marker = findChild(cards[0], "marker");
            fuzzyCompare(marker.x, 230.5 / 600 * (marker.parent.width - marker.width), 0.01);

            const recommendations = onScreen(tips, "recommendation_", 5);
            const titles = recommendations.map(card => findChild(card, "title").text);
            compare(titles, ["Stay Indoors", "Windows and Doors.", "Air Purifier", "Wear a mask", "Monitor your Health"]);
            compare(findChild(recommendations[1], "text").text,
                    "If you must go outside, close your windows and doors to keep polluted air out of your home.");
        }

        function test_tipCardsTurnOverToTheFullRecommendation() {
            window.view = tipCards.createObject(window);
            const category = window.view.category;
            tryVerify(() => findChild(category, "tipCard_1"), 2000, "the cards are laid out");
            const cards = onScreen(category, "tipCard_", 2);
            compare(findChild(cards[1], "title").text, "Windows and Doors");
            compare(findChild(cards[1], "shortText").text, "Close your windows and doors to keep polluted air out of your home.");
            for (const card of cards) {
                verify(!findChild(card, "title").truncated, findChild(card, "title").text + " fits");
                verify(!findChild(card, "shortText").truncated, findChild(card, "shortText").text + " fits");
            }
            const showLess = findChild(category, "showLess");
            verify(!showLess.visible);
            verify(!findChild(cards[1], "longText"), "a card's back is built when it first turns");

            mouseClick(cards[1]);
            verify(category.model.isSecondButtonVisible2);
            verify(showLess.visible, "an open card offers to close it again");
            const longText = findChild(cards[1], "longText");
            tryCompare(longText, "opacity", 1, 2000);
            compare(longText.text, "If you must go outside, close your windows and doors to keep polluted air out of your home.");

            // The longest recommendation, on the last card, fits too.
            findChild(category, "tipCards").positionViewAtEnd();
            const last = findChild(category, "tipCard_4");
            mouseClick(last);
            verify(category.model.isSecondButtonVisible5);
            tryCompare(findChild(last, "longText"), "opacity", 1, 2000);
            verify(!findChild(last, "longText").truncated, "the whole recommendation fits on the card");

            mouseClick(showLess);
            verify(!category.model.isSecondButtonVisible2 && !category.model.isSecondButtonVisible5);
            verify(!showLess.visible);
            tryCompare(findChild(last, "shortText"), "opacity", 1, 2000);
        }
    }
}
