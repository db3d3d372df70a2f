// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// An index's status on its colour: "AQI" over the value, the status beside it.
Rectangle {
    id: badge

    // Anything with statusColor, statusTextColor, aqiValue and txt_status.
    property QtObject source
    property int valueSize: 44

    height: Math.max(valueColumn.implicitHeight, statusText.implicitHeight) + 28
    radius: 14
    color: badge.source.statusColor

    Behavior on color { ColorAnimation { duration: Theme.defaultAnimationDuration } }

    Column {
        id: valueColumn
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter

        T.Label {
            text: "AQI"
            font.pixelSize: Theme.captionSize
            font.bold: true
            font.letterSpacing: 1
            color: badge.source.statusTextColor
        }
        T.Label {
            objectName: "aqiValue"
            text: badge.source.aqiValue
            font.pixelSize: badge.valueSize
            font.bold: true
            color: badge.source.statusTextColor
        }
    }

    T.Label {
        id: statusText
        objectName: "aqiStatus"
        anchors.left: valueColumn.right
        anchors.leftMargin: 16
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: badge.source.txt_status
        horizontalAlignment: Text.AlignRight
        wrapMode: Text.WordWrap
        font.pixelSize: Theme.headlineSize + 3
        font.bold: true
        color: badge.source.statusTextColor
    }
}
