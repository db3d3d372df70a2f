// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// One health recommendation: its picture beside its title and text.
Rectangle {
    id: card

    property alias image: picture.name
    property alias title: titleText.text
    property alias text: bodyText.text

    implicitHeight: Math.max(picture.height, words.implicitHeight) + 24
    radius: 16
    color: Qt.rgba(1, 1, 1, 0.92)

    TipImage {
        id: picture
        x: 12
        y: 12
        width: 104
        height: 78
    }

    Column {
        id: words
        anchors.left: picture.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 12
        y: 12
        spacing: 4

        T.Label {
            id: titleText
            objectName: "title"
            width: parent.width
            wrapMode: Text.WordWrap
            font.pixelSize: Theme.captionSize + 3
            font.bold: true
            color: Theme.label
        }
        T.Label {
            id: bodyText
            objectName: "text"
            width: parent.width
            wrapMode: Text.WordWrap
            lineHeight: 1.1
            font.pixelSize: Theme.captionSize + 1
            color: Theme.kOthers
        }
    }
}
