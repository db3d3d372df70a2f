// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// One day of the history: the day, its worst level in that level's colour and
// words, and the hour it was first reached. Columns line up from row to row.
Rectangle {
    id: row

    property string dayName
    property string date
    property string levelName
    property color levelColor
    property string peak

    height: 56
    radius: 12
    color: Theme.surface

    Column {
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width * 0.36

        T.Label {
            width: parent.width
            elide: Text.ElideRight
            text: row.dayName
            font.pixelSize: 15
            font.weight: Font.DemiBold
            color: Theme.label
        }
        T.Label {
            text: row.date
            font.pixelSize: Theme.captionSize
            color: Theme.secondaryLabel
        }
    }

    Row {
        x: parent.width * 0.4
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        Rectangle {
            objectName: "levelSwatch"
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            radius: 7
            color: row.levelColor
        }
        T.Label {
            objectName: "levelName"
            text: row.levelName
            font.pixelSize: 15
            color: Theme.label
        }
    }

    Column {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter

        T.Label {
            anchors.right: parent.right
            text: "worst at"
            font.pixelSize: Theme.captionSize
            color: Theme.secondaryLabel
        }
        T.Label {
            objectName: "peak"
            anchors.right: parent.right
            text: row.peak
            font.pixelSize: 15
            color: Theme.label
        }
    }
}
