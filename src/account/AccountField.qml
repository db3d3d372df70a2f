// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// A text field of the account screens: a light rounded box with its placeholder.
TextField {
    width: parent ? parent.width : implicitWidth
    height: 50
    leftPadding: 16
    rightPadding: 16
    font.pixelSize: Theme.bodySize
    color: Theme.label
    placeholderTextColor: Theme.tertiaryLabel
    selectByMouse: true
    // Set explicitly: a name taken from the placeholder alone is lost when a
    // screen reader starts after the field was built.
    Accessible.name: placeholderText

    background: Rectangle {
        radius: 10
        color: Theme.surface
        border.color: parent.activeFocus ? Theme.blue : Theme.separator
    }
}
