// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// The index scale for reference: each category's colour, name, range and
// advisory. It is the same table whatever the readings are.
Flickable {
    id: scale

    contentHeight: table.height
    clip: true

    Column {
        id: table
        x: 12
        width: scale.width - 24
        topPadding: 16
        bottomPadding: 16
        spacing: 4

        T.Label {
            objectName: "title"
            text: "The AQI Index Scale"
            font.pixelSize: Theme.titleSize
            font.bold: true
            color: Theme.label
            bottomPadding: 8
        }

        Row {
            topPadding: 8
            bottomPadding: 8
            spacing: 8

            ScaleText {
                width: 98
                text: "Name"
                font.bold: true
            }
            ScaleText {
                width: 90
                text: "Index Value"
                font.bold: true
            }
            ScaleText {
                text: "Advisory"
                font.bold: true
            }
        }

        ScaleRow {
            objectName: "row0"
            width: parent.width
            color: Theme.green
            name: "Good"
            range: "0 - 50"
            advisory: ScaleAdvisories.advisory(1)
            swatchHeight: 38
            textHeight: 20
        }
        ScaleRow {
            objectName: "row1"
            width: parent.width
            color: Theme.yellow
            name: "Moderate"
            range: "51 - 100"
            advisory: ScaleAdvisories.advisory(2)
            swatchHeight: 125
            textHeight: 110
        }
        ScaleRow {
            objectName: "row2"
            width: parent.width
            color: Theme.orange
            name: "Unhealthy for Sensitive Groups"
            range: "101 - 150"
            advisory: ScaleAdvisories.advisory(3)
            swatchHeight: 195
            textHeight: 180
        }
        ScaleRow {
            objectName: "row3"
            width: parent.width
            color: Theme.red
            name: "Unhealthy"
            range: "151 - 200"
            advisory: ScaleAdvisories.advisory(4)
            swatchHeight: 260
            textHeight: 250
        }
        ScaleRow {
            objectName: "row4"
            width: parent.width
            color: Theme.assetPurple
            name: "Very Unhealthy"
            range: "201 - 300"
            advisory: ScaleAdvisories.advisory(5)
            swatchHeight: 125
            textHeight: 110
        }
        ScaleRow {
            objectName: "row5"
            width: parent.width
            color: Theme.maroon
            name: "Hazardous"
            range: "Above 300"
            advisory: ScaleAdvisories.advisory(6)
            swatchHeight: 150
            textHeight: 150
        }
    }
}
