// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import Tarnelo 1.0

// One way to pay: its picture and name, ticked while the shared choice
// (isSelected, one value for all rows) is this row's optionId.
AbstractButton {
    id: row

    property string option
    property string imageName
    property var isSelected
    property int optionId

    // A tap asks for this row's optionId to become the shared choice.
    signal picked(int optionId)

    readonly property bool checkedRow: isSelected === optionId

    width: parent ? parent.width : implicitWidth
    height: 56
    leftPadding: 16
    rightPadding: 16
    Accessible.role: Accessible.RadioButton
    Accessible.name: option
    Accessible.checked: checkedRow
    onClicked: row.picked(row.optionId)

    contentItem: Item {
        Image {
            id: picture
            anchors.verticalCenter: parent.verticalCenter
            width: 48
            height: 32
            sourceSize: Qt.size(96, 64)
            source: "qrc:/images/" + row.imageName + ".svg"
        }
        T.Label {
            anchors.left: picture.right
            anchors.leftMargin: 12
            anchors.right: mark.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            elide: Text.ElideRight
            text: row.option
            font.pixelSize: Theme.bodySize
            color: Theme.black
        }
        SymbolIcon {
            id: mark
            objectName: "checkMark"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            name: row.checkedRow ? "checkmark.circle.fill" : "circle"
            color: row.checkedRow ? Theme.blue : Theme.gray
        }
    }
}
