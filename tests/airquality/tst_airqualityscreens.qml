// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import Tarnelo 1.0
import "qrc:/qml"

// The index scale, and the dashboard's header with the indoor advice under it
// before and after an unhealthy reading, on a phone-sized window with the
// device fixed in central Nairobi.
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

        function test_scaleShowsTheSixCategories() {
            const rows = [
                [Theme.green, "Good", "0 - 50", "None", 38],
                [Theme.yellow, "Moderate", "51 - 100", "Usually sensitive individual should consider limiting prolonged outdoor exertion.", 125],
                [Theme.orange, "Unhealthy for Sensitive Groups", "101 - 150",
                    "Children, active adults, and people with respiratory disease, such as asthma, should limit pronged outdoor exertion.", 195],
                [Theme.red, "Unhealthy", "151 - 200",
                    "Children, active adults, and people with respiratory disease, such as asthma, should avoid outdoor exertion;everyone else should limit prolonged outdoor exertion.", 260],
                [Theme.assetPurple, "Very Unhealthy", "201 - 300", "Heath alert: The risk of health effects is increased for everyone.", 125],
                [Theme.maroon, "Hazardous", "Above 300", "Health warning of emergency conditions: everyone is more likely to be affected.", 150]
            ];
            const scale = show("ScaleView.qml");
            compare(findChild(scale, "title").text, "The AQI Index Scale");
            let previousY = -1;
            rows.forEach((expected, index) => {
                const row = findChild(scale, "row" + index);
                const swatch = findChild(row, "swatch");
                compare(swatch.color, expected[0]);
                compare(findChild(row, "name").text, expected[1]);
                compare(findChild(row, "range").text, expected[2]);
                compare(findChild(row, "advisory").text, expected[3]);
                compare(swatch.height, expected[4]);
                verify(row.y > previousY, "row " + index + " is below the one before");
                verify(findChild(row, "advisory").x + findChild(row, "advisory").width <= scale.width, "row " + index + " fits the width");
                previousY = row.y;
            });
            verify(scale.contentHeight > scale.height, "the table is taller than a phone");
            verify(screenshots.save(scale, "scale.png"));
            scale.contentY = scale.contentHeight - scale.height;
            verify(screenshots.save(scale, "scale-end.png"));
        }

        function test_headerShowsTheStatusOfTheReading() {
            const column = dashboard.createObject(window);
            window.view = column;
            const header = column.header;
            const status = findChild(header, "statusBadge");
            compare(findChild(header, "aqiStatus").text, "AQI Status");
            compare(findChild(header, "aqiValue").text, "0");
            compare(status.color, Theme.white);
            compare(findChild(header, "aqiStatus").color, Theme.black);
            compare(findChild(header, "townName").text, "Loading..");
            compare(findChild(header, "todayDate").text, new Date().toLocaleDateString(Qt.locale(), Locale.LongFormat));
            for (const tile of ["CO", "NO", "NO2", "O3", "SO2", "PM2.5", "PM10", "NH3"])
                compare(findChild(header, "tile_" + tile).value, "0");
            const neutralAdvice = findChild(column.indoors, "indoorAdvice").text;

            tryCompare(findChild(header, "aqiStatus"), "text", "Unhealthy", 5000);
            compare(findChild(header, "aqiValue").text, "300");
            tryCompare(status, "color", Theme.red, 2000);
            compare(findChild(header, "aqiValue").color, Theme.black);
            tryCompare(findChild(header, "townName"), "text", "Nairobi", 5000);
            compare(findChild(header, "tile_PM2.5").value, "88.4");
            compare(findChild(header, "tile_NH3").value, "6.2");
            verify(findChild(column.indoors, "indoorAdvice").text !== neutralAdvice, "the indoor advice follows the reading");
            verify(screenshots.save(column, "header.png"));
        }
    }
}
