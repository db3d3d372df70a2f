// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// The side menu: who is signed in, the destinations, and the footer lines.
Rectangle {
    id: menu

    property var sideMenuItems: []
    property var additionalItems: []
    property var selectedMenuItem
    property string user_name

    signal itemTapped(string name)
    signal additionalItemTapped(string text)

    width: 220
    color: Theme.white

    // shadow along the trailing edge
    Rectangle {
        anchors.left: parent.right
        width: 6
        height: parent.height
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: Qt.rgba(0, 0, 0, 0.18) }
            GradientStop { position: 1; color: "transparent" }
        }
    }

    Column {
        id: header
        width: parent.width

        Row {
            padding: 10
            spacing: 10

            SymbolIcon {
                name: "person.crop.circle.fill"
                size: 50
                color: Theme.gray
            }
            T.Label {
                objectName: "userName"
                anchors.verticalCenter: parent.verticalCenter
                width: menu.width - 90
                text: menu.user_name
                // A long name wraps, and only a very long one is cut.
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
                font.pixelSize: Theme.bodySize
                font.weight: Font.DemiBold
                color: Theme.label
            }
        }
        Rectangle {
            width: parent.width
            height: 1
            color: Theme.separator
        }
        Repeater {
            model: menu.sideMenuItems

            // A plain button rather than a list delegate: a list item offers
            // no press action to a screen reader.
            PlainButton {
                objectName: "menuItem_" + modelData.name
                text: modelData.name
                Accessible.name: text
                Accessible.selected: modelData.name === menu.selectedMenuItem
                width: header.width
                topPadding: 13
                bottomPadding: 13
                leftPadding: 16
                rightPadding: 16
                onClicked: menu.itemTapped(modelData.name)
                background: Rectangle { color: parent.down ? Theme.background : "transparent" }
                contentItem: Row {
                    spacing: 12

                    SymbolIcon {
                        anchors.verticalCenter: parent.verticalCenter
                        name: modelData.icon
                        size: 20
                        color: Theme.label
                    }
                    T.Label {
                        anchors.verticalCenter: parent.verticalCenter
                        width: header.width - 84
                        text: parent.parent.text
                        font.pixelSize: Theme.bodySize
                        color: Theme.label
                    }
                    T.Label {
                        objectName: "tick"
                        anchors.verticalCenter: parent.verticalCenter
                        visible: modelData.name === menu.selectedMenuItem
                        text: "✓"
                        font.pixelSize: Theme.bodySize
                        color: Theme.blue
                    }
                }
            }
        }
        Rectangle {
            width: parent.width
            height: 1
            color: Theme.separator
        }
    }

    Flickable {
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        contentHeight: footer.height
        clip: true

        Column {
            id: footer
            width: parent.width
            topPadding: 8

            Repeater {
                model: menu.additionalItems

                PlainButton {
                    objectName: "footer_" + modelData
                    text: modelData
                    Accessible.name: text
                    Accessible.role: Accessible.Link
                    width: footer.width
                    topPadding: 12
                    bottomPadding: 12
                    leftPadding: 16
                    onClicked: menu.additionalItemTapped(modelData)
                    contentItem: Text {
                        text: parent.text
                        font.pixelSize: Theme.bodySize
                        color: Theme.blue
                        opacity: parent.pressed ? 0.4 : 1
                    }
                }
            }
        }
    }
}
