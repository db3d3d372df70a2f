// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import Tarnelo 1.0

// The index scale, the dashboard and its link to the past week, and the
// health tips screen, on a phone-sized window with the device fixed in
// central Nairobi. What the readings mean is the model tests'; here only
// that the screens show them, lay them out and answer taps.
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
            const rows = [[Theme.green, "Good", "0 - 50"], [Theme.yellow, "Moderate", "51 - 100"],
                [Theme.orange, "Unhealthy for Sensitive Groups", "101 - 150"], [Theme.red, "Unhealthy", "151 - 200"],
                [Theme.assetPurple, "Very Unhealthy", "201 - 300"], [Theme.maroon, "Hazardous", "Above 300"]];
            const scale = show("ScaleView.qml");
            let previousY = -1;
            rows.forEach(([color, name, range], index) => {
                const row = findChild(scale, "row" + index);
                compare(findChild(row, "swatch").color, color);
                compare(findChild(row, "name").text, name);
                compare(findChild(row, "range").text, range);
                const advisory = findChild(row, "advisory");
                verify(row.y > previousY, "row " + index + " is below the one before");
                verify(advisory.x + advisory.width <= scale.width, "row " + index + " fits the width");
                previousY = row.y;
            });
            verify(scale.contentHeight > scale.height, "the table is taller than a phone");
        }

        function test_headerShowsTheStatusOfTheReading() {
            const dashboard = show("MainView.qml");
            const neutralAdvice = findChild(dashboard, "indoorAdvice").text;
            tryCompare(findChild(dashboard, "aqiStatus"), "text", "Unhealthy", 5000);
            compare(findChild(dashboard, "aqiValue").text, "300");
            tryCompare(findChild(dashboard, "statusBadge"), "color", Theme.red, 2000);
            tryCompare(findChild(dashboard, "townName"), "text", "Nairobi", 5000);
            compare(findChild(dashboard, "tile_CO").value, "230.5");
            compare(findChild(dashboard, "tile_PM2.5").value, "38.2");
            verify(findChild(dashboard, "indoorAdvice").text !== neutralAdvice, "the indoor advice follows the reading");
        }

        function test_tipsShowTheReadingsInRowsAndTheRecommendations() {
            const tips = show("TipsView.qml");
            const cards = onScreen(tips, "pollutant_", 8);
            tryCompare(findChild(cards[0], "value"), "text", "230.5 mg/m3", 5000);
            const titles = ["Carbon Monoxide (CO)", "Nitric Oxide (NO)", "Nitrogen Dioxide (NO2)", "Ozone Gas (O3)",
                "Sulfur Dioxide (SO2)", "Ammonia (NH3)", "Particulate Matter (PM10)", "Particulate Matter (PM2.5)"];
            compare(cards.map(card => findChild(card, "title").text), titles);
            compare(findChild(cards[7], "value").text, "38.2 mg/m3");
            for (let row = 0; row < 4; ++row)
                compare(cards[2 * row].mapToItem(window, 0, 0).y, cards[2 * row + 1].mapToItem(window, 0, 0).y, "row " + row + " holds two cards");
            const marker = findChild(cards[0], "marker");
            fuzzyCompare(marker.x, 230.5 / 600 * (marker.parent.width - marker.width), 0.01);

            const recommendations = onScreen(tips, "recommendation_", 5);
            compare(recommendations.map(card => findChild(card, "title").text),
                    ["Stay Indoors", "Windows and Doors.", "Air Purifier", "Wear a mask", "Monitor your Health"]);
        }

        function test_tipCardsTurnOverToTheFullRecommendation() {
            const dashboard = show("MainView.qml");
            tryVerify(() => findChild(dashboard, "tipCard_1"), 2000, "the cards are laid out");
            const cards = onScreen(dashboard, "tipCard_", 2);
            for (const card of cards) {
                verify(!findChild(card, "title").truncated, findChild(card, "title").text + " fits");
                verify(!findChild(card, "shortText").truncated, findChild(card, "shortText").text + " fits");
            }
            const showLess = findChild(dashboard, "showLess");
            verify(!showLess.visible);
            verify(!findChild(cards[1], "longText"), "a card's back is built when it first turns");

            mouseClick(cards[1]);
            verify(showLess.visible, "an open card offers to close it again");
            tryCompare(findChild(cards[1], "longText"), "opacity", 1, 2000);
            verify(!findChild(cards[0], "longText"), "only the tapped card turns");

            // The longest recommendation, on the last card, fits too.
            findChild(dashboard, "tipCards").positionViewAtEnd();
            const last = findChild(dashboard, "tipCard_4");
            mouseClick(last);
            tryCompare(findChild(last, "longText"), "opacity", 1, 2000);
            verify(!findChild(last, "longText").truncated, "the whole recommendation fits on the card");

            mouseClick(showLess);
            verify(!showLess.visible);
            tryCompare(findChild(last, "shortText"), "opacity", 1, 2000);
        }

        // Opened from the dashboard's link over it; a failed answer waits for
        // a tap on "Try again".
        function test_historyLinkOpensThePastWeekOverTheDashboard() {
            backend.answerHistory(401, '{"cod":401,"message":"Invalid API key."}');
            const home = show("HomeView.qml");
            const page = findChild(home, "page");
            mouseClick(findChild(home, "historyLink"));
            tryCompare(page, "x", 0, 2000);
            tryCompare(page.item.model, "state", HistoryViewModel.Failed, 5000);

            backend.answerHistory(200, JSON.stringify({ list: [{ main: { aqi: 4 }, dt: Date.now() / 1000 }] }));
            mouseClick(findChild(page.item, "tryAgain"));
            tryCompare(page.item.model, "state", HistoryViewModel.Ready, 5000);
            tryVerify(() => findChild(page.item, "chartView") !== null, 2000);
            mouseClick(findChild(page.item, "backButton"));
            compare(String(page.source), "");
        }
    }
}
