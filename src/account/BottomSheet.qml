// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// A sheet rising from the window's bottom edge over a dimmed screen, with
// rounded top corners; the sheet's user gives it its content.
Drawer {
    edge: Qt.BottomEdge
    width: parent ? parent.width : 0
    height: implicitContentHeight + topPadding + bottomPadding
    interactive: false
    padding: 0
    topPadding: 18
    bottomPadding: 24
    Overlay.modal: Rectangle { color: Theme.scrim }

    background: Rectangle {
        radius: 16
        color: Theme.surface

        // Square off the bottom corners: the sheet sits on the window's edge.
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: parent.radius
            color: parent.color
        }
    }
}
