// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// The weather at the user's position.
Rectangle {
    id: weather

    readonly property MainWeatherViewModel model: MainWeatherViewModel {}

    implicitHeight: content.implicitHeight + 32
    radius: 20
    color: Theme.gray

    Column {
        id: content
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        Text {
            text: "WEATHER UPDATES"
            font.pixelSize: Theme.headlineSize
            font.bold: true
            color: Theme.white
        }

        Grid {
            columns: 3
            spacing: 8
            width: parent.width

            Repeater {
                model: [["Temperature", weather.model.celsiusText], ["Wind", weather.model.txt_wind + "km/h"], ["Humidity", weather.model.txt_humid + "%"],
                    ["UV index", weather.model.txt_uv], ["Pollen", weather.model.txt_pollen]]
                ReadingTile {
                    objectName: "weather_" + modelData[0]
                    width: (content.width - 16) / 3
                    label: modelData[0]
                    value: modelData[1]
                }
            }
        }
    }
}
