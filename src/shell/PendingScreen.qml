// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// A destination whose screen has not been built yet: it shows its name only.
Item {
    property alias title: titleText.text

    Text {
        id: titleText
        anchors.centerIn: parent
        font.pixelSize: Theme.headlineSize
        color: Theme.gray
    }
}
