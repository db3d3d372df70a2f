// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import Tarnelo 1.0

// A labelled box showing the current choice in blue with a chevron; a tap
// anywhere on it asks for the choices.
LabelledBox {
    id: box

    property string value
    property alias buttonName: button.objectName
    property alias valueName: valueText.objectName
    // What the button is for, for those who cannot see it; the label unless
    // the screen says otherwise.
    property string accessibleName: label

    signal tapped()

    AbstractButton {
        id: button
        anchors.fill: parent
        Accessible.name: box.accessibleName
        Accessible.description: box.value
        onClicked: box.tapped()

        contentItem: Row {
            layoutDirection: Qt.RightToLeft
            spacing: 6

            T.Label {
                anchors.verticalCenter: parent.verticalCenter
                text: "›"
                font.pixelSize: 22
                color: Theme.gray
            }
            T.Label {
                id: valueText
                anchors.verticalCenter: parent.verticalCenter
                text: box.value
                font.pixelSize: Theme.bodySize
                color: Theme.blue
            }
        }
    }
}
