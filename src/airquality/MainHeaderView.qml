// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// How clean the air is at the user's position: the status of its index on the
// status colour, where and when, and the eight pollutant readings.
Rectangle {
    id: header

    readonly property MainHeaderViewModel model: MainHeaderViewModel {}

    signal historyRequested()

    implicitHeight: content.implicitHeight + 32
    radius: 20
    color: Theme.blue

    Column {
        id: content
        anchors.fill: parent
        anchors.margins: 16
        spacing: 12

        StatusBadge {
            objectName: "statusBadge"
            width: parent.width
            source: header.model
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
            T.Label {
                objectName: "townName"
                width: Math.min(implicitWidth, parent.width - locationIcon.width - dateText.width - 2 * parent.spacing)
                elide: Text.ElideRight
                text: header.model.locationManager.townName || "Loading.."
                font.pixelSize: Theme.captionSize + 2
                font.bold: true
                color: Theme.white
            }
            T.Label {
                id: dateText
                objectName: "todayDate"
                text: new Date().toLocaleDateString(Qt.locale(), Locale.LongFormat)
                font.pixelSize: Theme.captionSize + 2
                color: Theme.white
                opacity: 0.85
            }
        }

        PollutantGrid {
            width: parent.width
            source: header.model
        }

        // Until an answer comes, what an earlier run last saw.
        T.Label {
            objectName: "lastReading"
            visible: text !== ""
            width: parent.width
            wrapMode: Text.Wrap
            text: header.model.lastReadingText
            font.pixelSize: Theme.captionSize + 1
            color: Theme.white
        }

        T.Label {
            objectName: "refreshProblem"
            visible: text !== ""
            width: parent.width
            wrapMode: Text.Wrap
            text: header.model.refreshProblem
            font.pixelSize: Theme.captionSize + 1
            font.bold: true
            color: Theme.white
        }

        Item {
            width: parent.width
            height: Math.max(updatedText.implicitHeight, historyLink.implicitHeight)

            T.Label {
                id: updatedText
                objectName: "updatedText"
                anchors.left: parent.left
                anchors.right: historyLink.left
                anchors.rightMargin: 5
                anchors.verticalCenter: parent.verticalCenter
                elide: Text.ElideRight
                text: header.model.updatedText
                font.pixelSize: Theme.captionSize + 1
                color: Theme.white
                opacity: 0.8
            }
            PlainButton {
                id: historyLink
                objectName: "historyLink"
                // Whole pixels, as a layout would place it: its text stays sharp.
                width: Math.ceil(implicitWidth)
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                padding: 4
                text: "Past 7 days \u203A"
                Accessible.role: Accessible.Link
                Accessible.name: "Past 7 days of air quality"
                onClicked: header.historyRequested()

                contentItem: Text {
                    text: historyLink.text
                    font.pixelSize: 15
                    font.weight: Font.DemiBold
                    color: Theme.white
                    opacity: historyLink.pressed ? 0.5 : 1
                }
            }
        }
    }
}
