// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// A tappable word or two in the app's blue, leading to another screen.
AbstractButton {
    id: link

    padding: 6
    // The arrows only point the way; a screen reader says the words.
    Accessible.name: text.replace(/[‹›]/g, "").trim()

    contentItem: Text {
        text: link.text
        font.pixelSize: 15
        font.weight: Font.DemiBold
        color: Theme.blue
        opacity: link.pressed ? 0.5 : 1
    }
}
