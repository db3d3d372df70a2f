// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// One reading on a dashboard panel: a small label over its value.
Rectangle {
    property alias label: labelText.text
    property alias value: valueText.text

    implicitHeight: 64
    radius: 12
    color: Theme.tileTint

    Column {
        anchors.centerIn: parent
        spacing: 4

        T.Label {
            id: labelText
            anchors.horizontalCenter: parent.horizontalCenter
            font.pixelSize: Theme.captionSize
            font.bold: true
            color: Theme.white
        }
        T.Label {
            id: valueText
            anchors.horizontalCenter: parent.horizontalCenter
            font.pixelSize: Theme.bodySize
            color: Theme.white
        }
    }
}
