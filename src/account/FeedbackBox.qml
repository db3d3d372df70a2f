// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// Where feedback is written: a few lines tall, growing with the text.
TextArea {
    width: parent ? parent.width : implicitWidth
    height: Math.max(96, implicitHeight)
    padding: 12
    wrapMode: TextEdit.Wrap
    font.pixelSize: Theme.bodySize
    color: Theme.label
    placeholderText: "Please share your feedback"
    placeholderTextColor: Theme.tertiaryLabel
    selectByMouse: true
    Accessible.name: placeholderText

    background: Rectangle {
        radius: 10
        color: Theme.background
        border.color: parent.activeFocus ? Theme.blue : Theme.separator
    }
}
