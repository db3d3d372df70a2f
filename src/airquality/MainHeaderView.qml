// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// The air-quality index at the user's position, where and when, and the eight
// pollutant readings.
Rectangle {
    id: header

    readonly property MainHeaderViewModel model: MainHeaderViewModel {}

    implicitHeight: content.implicitHeight + 32
    radius: 20
    color: Theme.blue

    Column {
        id: content
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        Text {
            objectName: "aqiValue"
            text: "AQI " + header.model.txt_aqi
            font.pixelSize: Theme.titleSize
            font.bold: true
            color: Theme.white
        }

        Row {
            spacing: 6
            SymbolIcon {
                name: "location.fill"
                color: Theme.white
                size: 16
            }
            Text {
                objectName: "townDate"
                text: (header.model.locationManager.townName || "Loading..") + " " + new Date().toLocaleDateString(Qt.locale(), Locale.LongFormat)
                font.pixelSize: Theme.captionSize + 2
                color: Theme.white
            }
        }

        Grid {
            columns: 4
            spacing: 8
            width: parent.width

            Repeater {
                model: [["CO", "txt_co"], ["NO", "txt_no"], ["NO2", "txt_no2"], ["O3", "txt_o3"],
                    ["SO2", "txt_so2"], ["PM2.5", "txt_pm25"], ["PM10", "txt_pm10"], ["NH3", "txt_nh3"]]
                ReadingTile {
                    objectName: "tile_" + modelData[0]
                    width: (content.width - 24) / 4
                    label: modelData[0]
                    value: header.model[modelData[1]]
                }
            }
        }
    }
}
