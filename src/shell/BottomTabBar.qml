// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// The five destinations along the bottom; the selected one in blue.
Rectangle {
    id: bar

    property var symbols: []
    property var names: []
    property int selectedIndex: 0

    signal tabTapped(int index)

    height: 72
    color: Theme.white

    // Black shadow of radius 5 at a third of full strength, drawn with a
    // gradient so that it also shows on the software renderer.
    Rectangle {
        anchors.bottom: parent.top
        width: parent.width
        height: 5
        gradient: Gradient {
            GradientStop { position: 0; color: "transparent" }
            GradientStop { position: 1; color: Qt.rgba(0, 0, 0, 0.33) }
        }
    }

    Row {
        anchors.fill: parent
        anchors.topMargin: 6

        Repeater {
            model: bar.names.length

            PlainButton {
                id: tab

                readonly property color tint: index === bar.selectedIndex ? Theme.blue : Theme.tertiaryLabel

                objectName: "tab" + index
                width: bar.width / bar.names.length
                height: parent.height
                Accessible.name: bar.names[index]
                Accessible.selected: index === bar.selectedIndex
                onClicked: bar.tabTapped(index)

                contentItem: Column {
                    spacing: 2

                    SymbolIcon {
                        anchors.horizontalCenter: parent.horizontalCenter
                        name: bar.symbols[index]
                        size: 30
                        color: tab.tint
                    }
                    T.Label {
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: bar.names[index]
                        font.pixelSize: Theme.captionSize
                        color: tab.tint
                    }
                }
            }
        }
    }
}
