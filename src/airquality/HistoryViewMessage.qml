// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// Why the history screen has nothing to draw: a symbol, a heading and a line
// of detail in the middle of the screen, and whatever is put under them.
Column {
    property string symbol
    property string heading
    property string detail

    anchors.centerIn: parent
    width: parent.width - 64
    spacing: 10

    SymbolIcon {
        anchors.horizontalCenter: parent.horizontalCenter
        name: parent.symbol
        color: Theme.gray
        size: 48
    }
    T.Label {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: parent.heading
        font.pixelSize: Theme.headlineSize
        font.weight: Font.DemiBold
        color: Theme.label
    }
    T.Label {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: parent.detail
        font.pixelSize: 15
        color: Theme.secondaryLabel
    }
}
