// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import Tarnelo 1.0
import "qrc:/qml"

// The health tips screen and the dashboard's tip cards under the navigation
// bar of a phone-sized window, with the device fixed in central Nairobi.
Rectangle {
    id: window
    width: 390
    height: 844
    color: Theme.background

    property var view

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
        id: dashboard
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
        name: "TipsView"
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
            fuzzyCompare(findChild(cards[7], "marker").x, 38.2 / 600 * (marker.parent.width - marker.width), 0.01);
            verify(screenshots.save(tips, "tips.png"));

            const recommendations = onScreen(tips, "recommendation_", 5);
            const titles = recommendations.map(card => findChild(card, "title").text);
            compare(titles, ["Stay Indoors", "Windows and Doors.", "Air Purifier", "Wear a mask", "Monitor your Health"]);
            compare(findChild(recommendations[1], "text").text,
                    "If you must go outside, close your windows and doors to keep polluted air out of your home.");
            const flickable = findChild(tips, "scroller");
            flickable.contentY = flickable.contentHeight - flickable.height;
            wait(50);
            verify(screenshots.save(tips, "tips-recommendations.png"));
        }

        function test_tipCardsTurnOverToTheFullRecommendation() {
            window.view = dashboard.createObject(window);
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

            mouseClick(cards[1]);
            verify(category.model.isSecondButtonVisible2);
            verify(showLess.visible, "an open card offers to close it again");
            const longText = findChild(cards[1], "longText");
            tryCompare(longText, "opacity", 1, 2000);
            compare(longText.text, "If you must go outside, close your windows and doors to keep polluted air out of your home.");
            verify(screenshots.save(category, "category.png"));

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
