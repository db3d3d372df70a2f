// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import Tarnelo 1.0

// One package to choose: a blue radio mark beside its title. The button's
// action says what choosing it does.
AbstractButton {
    id: row

    property string title
    property bool isSelected

    width: parent ? parent.width : implicitWidth
    height: 44
    Accessible.role: Accessible.RadioButton
    Accessible.name: title
    Accessible.checked: isSelected

    contentItem: Row {
        spacing: 12

        SymbolIcon {
            anchors.verticalCenter: parent.verticalCenter
            name: row.isSelected ? "largecircle.fill.circle" : "circle"
            color: Theme.blue
        }
        T.Label {
            anchors.verticalCenter: parent.verticalCenter
            text: row.title
            font.pixelSize: Theme.bodySize
            color: Theme.label
        }
    }
}
