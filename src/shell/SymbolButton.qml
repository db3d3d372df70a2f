// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// A symbol at title size that acts as a button.
PlainButton {
    id: button

    property string symbol
    // What the button does, for a screen reader: the symbol's name is no word.
    required property string label

    implicitWidth: 44
    implicitHeight: 44
    Accessible.name: label

    contentItem: SymbolIcon {
        name: button.symbol
        size: Theme.titleSize
        color: Theme.blue
        opacity: button.pressed ? 0.4 : 1
    }
}
