// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// Advice for the air indoors, following the outdoor air. Bind outdoorIndex to
// the header's category:
//
//     MainIndoorsView { outdoorIndex: header.model.txt_aqi }
Rectangle {
    id: indoors

    // The outdoor air-quality category, "1" to "6"; any other text gets
    // advice that holds whatever the air.
    property alias outdoorIndex: advice.outdoorIndex

    // Never less than its rounded corners, also before its text is there.
    implicitHeight: Math.max(content.implicitHeight + 32, 2 * radius)
    radius: 20
    color: Theme.kPrimary

    MainIndoorsViewModel {
        id: advice
    }

    // Below the fold at start, but for the panel's top edge: its text is laid
    // out once the first frame is out.
    Loader {
        id: content
        anchors.fill: parent
        anchors.margins: 16
        active: FirstFrameGate.open

        sourceComponent: Column {
            spacing: 12

            T.Label {
                text: "IN-DOOR AIR QUALITY"
                font.pixelSize: Theme.headlineSize
                font.bold: true
                color: Theme.white
            }

            Row {
                width: parent.width
                spacing: 12

                SymbolIcon {
                    id: houseIcon
                    name: "house.fill"
                    color: Theme.white
                    size: 28
                }
                T.Label {
                    objectName: "indoorAdvice"
                    width: parent.width - houseIcon.width - parent.spacing
                    anchors.verticalCenter: parent.verticalCenter
                    text: advice.advice
                    wrapMode: Text.WordWrap
                    font.pixelSize: Theme.bodySize - 2
                    color: Theme.white
                }
            }
        }
    }
}
