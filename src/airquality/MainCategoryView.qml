// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// Tips for bad-air days on the dashboard: a row of cards to swipe through,
// each turning over to its full recommendation when tapped.
Column {
    id: category

    readonly property MainCategoryViewModel model: MainCategoryViewModel {}

    spacing: 8

    T.Label {
        text: "CATEGORY INSIGHTS"
        Accessible.role: Accessible.Heading
        Accessible.name: text
        font.pixelSize: Theme.headlineSize
        font.bold: true
        color: Theme.label
    }

    Item {
        width: parent.width
        height: Math.max(prompt.implicitHeight, showLess.implicitHeight)

        T.Label {
            id: prompt
            anchors.verticalCenter: parent.verticalCenter
            text: "Tap to learn more"
            font.pixelSize: Theme.captionSize + 2
            font.bold: true
            color: Theme.kOthers
        }

        PlainButton {
            id: showLess
            objectName: "showLess"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: category.model.isSecondButtonVisible6
            text: "Show less"
            Accessible.name: text
            padding: 4
            leftPadding: 10
            rightPadding: 10
            font.pixelSize: Theme.captionSize + 1
            font.bold: true
            onClicked: category.model.turnAllBack()

            contentItem: Text {
                text: showLess.text
                font: showLess.font
                color: Theme.blue
            }
            background: Rectangle {
                radius: height / 2
                color: Qt.rgba(0, 0.48, 1, showLess.down ? 0.24 : 0.12)
            }
        }
    }

    ListView {
        id: cards
        objectName: "tipCards"
        width: parent.width
        height: 256
        orientation: ListView.Horizontal
        spacing: 12
        clip: true
        // The cards beyond the right edge are made ready for a swipe only
        // once the first frame is out.
        cacheBuffer: FirstFrameGate.open ? 320 : 0
        model: HealthTipsModel {}

        delegate: TipCard {
            objectName: "tipCard_" + index
            // A card reached with Tab comes into view.
            onActiveFocusChanged: if (activeFocus) cards.positionViewAtIndex(index, ListView.Contain)
            width: 156
            height: cards.height
            image: model.image
            title: model.title
            shortText: model.shortText
            longText: model.longText
            turned: category.model["isSecondButtonVisible" + (index + 1)]
            onClicked: category.model.toggle(index + 1)
        }
    }
}
