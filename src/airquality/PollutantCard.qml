// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// One pollutant: its name, its reading with the unit, and a marker where the
// reading falls on a scale from green to yellow.
Rectangle {
    id: card

    property alias title: titleText.text
    property string reading
    readonly property PollutantCardModel model: PollutantCardModel {
        reading: card.reading
    }
    readonly property color gradientStart: Theme.green
    readonly property color gradientEnd: Theme.yellow

    implicitHeight: content.implicitHeight
    radius: 5
    color: Theme.kPrimary

    Column {
        id: content
        width: parent.width
        padding: 12
        spacing: 6

        T.Label {
            id: titleText
            objectName: "title"
            width: parent.width - 2 * parent.padding
            wrapMode: Text.WordWrap
            font.pixelSize: Theme.captionSize
            font.weight: Font.DemiBold
            color: Theme.white
        }
        T.Label {
            objectName: "value"
            width: parent.width - 2 * parent.padding
            text: card.model.value
            elide: Text.ElideRight
            font.pixelSize: Theme.captionSize
            color: Theme.white
        }
        Item {
            width: parent.width - 2 * parent.padding
            height: 16

            Rectangle {
                id: bar
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width
                height: 10
                radius: 5
                gradient: Gradient {
                    orientation: Gradient.Horizontal
                    GradientStop { position: 0; color: card.gradientStart }
                    GradientStop { position: 1; color: card.gradientEnd }
                }
            }
            // The model places the marker on a scale scaleWidth long; the bar
            // is as wide as the card allows.
            Rectangle {
                objectName: "marker"
                anchors.verticalCenter: parent.verticalCenter
                x: card.model.markerX / card.model.scaleWidth * (bar.width - width)
                width: 12
                height: 12
                radius: 6
                color: Theme.red
                border.color: Theme.white
                border.width: 1.5
            }
        }
    }
}
