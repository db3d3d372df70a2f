// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// A tip on the dashboard: its picture, title and short text; turned over, the
// picture gives way to the full recommendation under the title.
Rectangle {
    id: card

    property alias image: picture.name
    property alias title: titleText.text
    property alias shortText: shortText.text
    property string longText
    property bool turned

    signal clicked()

    radius: 14
    color: Theme.surface
    activeFocusOnTab: true
    Keys.onReturnPressed: card.clicked()
    Keys.onSpacePressed: card.clicked()
    Accessible.role: Accessible.Button
    Accessible.name: title
    Accessible.description: card.turned ? card.longText : card.shortText
    Accessible.onPressAction: card.clicked()

    TipImage {
        id: picture
        x: 5
        y: 5
        width: parent.width - 10
        height: width * 3 / 4
        opacity: card.turned ? 0 : 1
        Behavior on opacity { NumberAnimation { duration: Theme.defaultAnimationDuration } }
    }

    Rectangle {
        id: titleBand
        x: 5
        y: card.turned ? 5 : picture.y + picture.height + 6
        width: parent.width - 10
        height: titleText.implicitHeight
        radius: 8
        color: Theme.kPrimary
        Behavior on y { NumberAnimation { duration: Theme.defaultAnimationDuration; easing.type: Easing.InOutQuad } }

        T.Label {
            id: titleText
            objectName: "title"
            width: parent.width
            padding: 5
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            elide: Text.ElideRight
            font.pixelSize: 14
            font.bold: true
            color: Theme.white
        }
    }

    T.Label {
        id: shortText
        objectName: "shortText"
        anchors.top: titleBand.bottom
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 5
        width: parent.width
        padding: 5
        leftPadding: 8
        rightPadding: 8
        wrapMode: Text.WordWrap
        elide: Text.ElideRight
        font.pixelSize: 13
        font.bold: true
        color: Theme.kOthers
        opacity: picture.opacity
    }

    // The back face: built the first time the card turns, as most never do.
    FirstUseLoader {
        anchors.top: titleBand.bottom
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 5
        width: parent.width
        wanted: card.turned

        sourceComponent: Text {
            objectName: "longText"
            padding: shortText.padding
            leftPadding: shortText.leftPadding
            rightPadding: shortText.rightPadding
            wrapMode: Text.WordWrap
            elide: Text.ElideRight
            text: card.longText
            font: shortText.font
            color: Theme.kOthers
            opacity: 1 - picture.opacity
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: card.clicked()
    }
}
