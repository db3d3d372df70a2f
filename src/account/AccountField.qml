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
    placeholderTextColor: Theme.gray
    selectByMouse: true

    background: Rectangle {
        radius: 10
        color: Theme.surface
        border.color: parent.activeFocus ? Theme.blue : Theme.separator
    }
}
