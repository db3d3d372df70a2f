// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// One category of the index scale: its colour, name, range and advisory.
Row {
    id: row

    property alias color: swatch.color
    property alias swatchHeight: swatch.height
    // The height the three texts are laid out in, before padding.
    property int textHeight
    property alias name: nameText.text
    property alias range: rangeText.text
    property alias advisory: advisoryText.text

    Rectangle {
        id: swatch
        objectName: "swatch"
        width: 20
        anchors.verticalCenter: parent.verticalCenter
    }

    Row {
        anchors.verticalCenter: parent.verticalCenter
        padding: 8
        spacing: 8

        ScaleText {
            id: nameText
            objectName: "name"
            width: 70
            height: row.textHeight
        }
        ScaleText {
            id: rangeText
            objectName: "range"
            width: 90
            height: row.textHeight
        }
        ScaleText {
            id: advisoryText
            objectName: "advisory"
            width: row.width - swatch.width - nameText.width - rangeText.width - 2 * parent.spacing - 2 * parent.padding
            height: row.textHeight
        }
    }
}
