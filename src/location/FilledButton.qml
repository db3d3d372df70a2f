// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// A button of white text on blue with rounded corners.
Button {
    id: button

    padding: 10
    leftPadding: 16
    rightPadding: 16
    // A button's text becomes its name only if a screen reader was running
    // when the text was set; naming it here holds either way.
    Accessible.name: text

    contentItem: Text {
        text: button.text
        font.pixelSize: Theme.bodySize
        color: Theme.white
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: 8
        color: Theme.blue
        opacity: button.down ? 0.7 : 1
    }
}
