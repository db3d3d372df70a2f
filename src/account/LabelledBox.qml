// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// A box shaped like the text fields with a label on its left and, on its
// right, whatever the screen puts there.
Rectangle {
    id: box

    property alias label: labelText.text
    default property alias content: slot.data

    width: parent ? parent.width : 0
    height: 50
    radius: 10
    color: Theme.surface
    border.color: Theme.separator

    T.Label {
        id: labelText
        x: 16
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: Theme.bodySize
        color: Theme.secondaryLabel
    }

    Item {
        id: slot
        anchors.left: labelText.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 12
        height: parent.height
    }
}
