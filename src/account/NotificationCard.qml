// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// One notification: its topic, when it was posted and its message; a blue
// dot and a bold topic while it is unread.
Rectangle {
    id: card

    property string topic
    property string message
    property string posteddate
    property bool unread

    height: content.implicitHeight
    radius: 12
    color: Theme.surface
    border.color: card.unread ? Theme.blue : Theme.separator

    Rectangle {
        objectName: "unreadDot"
        visible: card.unread
        x: 12
        y: 22
        width: 8
        height: 8
        radius: 4
        color: Theme.blue
    }

    Column {
        id: content
        x: 28
        width: parent.width - x - 16
        topPadding: 14
        bottomPadding: 14
        spacing: 4

        T.Label {
            width: parent.width
            wrapMode: Text.Wrap
            text: card.topic
            font.pixelSize: Theme.headlineSize
            font.weight: card.unread ? Font.Bold : Font.DemiBold
            color: Theme.label
        }
        T.Label {
            width: parent.width
            text: card.posteddate
            font.pixelSize: Theme.captionSize
            color: Theme.tertiaryLabel
        }
        T.Label {
            width: parent.width
            topPadding: 4
            wrapMode: Text.Wrap
            text: card.message
            font.pixelSize: 15
            lineHeight: 1.15
            color: Theme.secondaryLabel
        }
    }
}
