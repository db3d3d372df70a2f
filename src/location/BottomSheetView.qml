// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// What a search found, on a white panel over the dimmed map: the place's
// name, its address, its latitude and longitude, and a button that closes it.
Item {
    id: sheet

    // A LocationDetails.
    property var details

    signal close()

    Rectangle {
        anchors.fill: parent
        color: Theme.black
        opacity: 0.5

        // The dimmed map takes no taps.
        MouseArea {
            anchors.fill: parent
        }
    }

    SoftShadow {
        anchors.fill: panel
        radius: panel.radius
    }

    Rectangle {
        id: panel
        objectName: "sheetPanel"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 20
        width: content.width + 20
        height: content.height + 20
        radius: 20
        color: Theme.white

        Column {
            id: content
            x: 10
            y: 10
            width: 300
            spacing: 8

            T.Label {
                objectName: "placeName"
                width: parent.width
                wrapMode: Text.Wrap
                text: sheet.details.name
                font.pixelSize: Theme.headlineSize
                font.weight: Font.DemiBold
                color: Theme.label
            }
            T.Label {
                objectName: "placeAddress"
                width: parent.width
                wrapMode: Text.Wrap
                text: sheet.details.address
                font.pixelSize: Theme.bodySize - 2
                color: Theme.secondaryLabel
            }
            T.Label {
                objectName: "placeLatitude"
                text: sheet.details.latitudeText
                font.pixelSize: Theme.bodySize
                color: Theme.label
            }
            T.Label {
                objectName: "placeLongitude"
                text: sheet.details.longitudeText
                font.pixelSize: Theme.bodySize
                color: Theme.label
            }
            FilledButton {
                objectName: "closeButton"
                width: parent.width
                text: "Close"
                onClicked: sheet.close()
            }
        }
    }
}
