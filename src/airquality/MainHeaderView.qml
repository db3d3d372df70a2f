// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// How clean the air is at the user's position: the status of its index on the
// status colour, where and when, and the eight pollutant readings.
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

        Rectangle {
            objectName: "statusBadge"
            width: parent.width
            height: Math.max(valueColumn.implicitHeight, statusText.implicitHeight) + 28
            radius: 14
            color: header.model.statusColor

            Behavior on color { ColorAnimation { duration: Theme.defaultAnimationDuration } }

            Column {
                id: valueColumn
                anchors.left: parent.left
                anchors.leftMargin: 16
                anchors.verticalCenter: parent.verticalCenter

                Text {
                    text: "AQI"
                    font.pixelSize: Theme.captionSize
                    font.bold: true
                    font.letterSpacing: 1
                    color: header.model.statusTextColor
                    opacity: 0.8
                }
                Text {
                    objectName: "aqiValue"
                    text: header.model.aqiValue
                    font.pixelSize: 44
                    font.bold: true
                    color: header.model.statusTextColor
                }
            }

            Text {
                id: statusText
                objectName: "aqiStatus"
                anchors.left: valueColumn.right
                anchors.leftMargin: 16
                anchors.right: parent.right
                anchors.rightMargin: 16
                anchors.verticalCenter: parent.verticalCenter
                text: header.model.txt_status
                horizontalAlignment: Text.AlignRight
                wrapMode: Text.WordWrap
                font.pixelSize: Theme.headlineSize + 3
                font.bold: true
                color: header.model.statusTextColor
            }
        }

        Row {
            width: parent.width
            spacing: 6

            SymbolIcon {
                id: locationIcon
                anchors.verticalCenter: parent.verticalCenter
                name: "location.fill"
                color: Theme.white
                size: 16
            }
            Text {
                objectName: "townName"
                width: Math.min(implicitWidth, parent.width - locationIcon.width - dateText.width - 2 * parent.spacing)
                elide: Text.ElideRight
                text: header.model.locationManager.townName || "Loading.."
                font.pixelSize: Theme.captionSize + 2
                font.bold: true
                color: Theme.white
            }
            Text {
                id: dateText
                objectName: "todayDate"
                text: new Date().toLocaleDateString(Qt.locale(), Locale.LongFormat)
                font.pixelSize: Theme.captionSize + 2
                color: Theme.white
                opacity: 0.85
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
