// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// Title of the current destination between the menu button and the user button.
Rectangle {
    id: bar

    property alias title: titleText.text

    signal menuTapped()
    signal userTapped()

    height: 52
    color: Theme.background

    SymbolButton {
        objectName: "menuButton"
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        symbol: "line.horizontal.3"
        label: "Menu"
        onClicked: bar.menuTapped()
    }

    T.Label {
        id: titleText
        anchors.centerIn: parent
        width: parent.width - 140
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
        font.pixelSize: Theme.headlineSize
        font.weight: Font.DemiBold
        color: Theme.label
    }

    SymbolButton {
        objectName: "userButton"
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        symbol: "person.crop.circle.fill"
        label: "Account"
        onClicked: bar.userTapped()
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.separator
    }
}
