// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The app's one alert: the title "Notification", a message and a single "OK".
Popup {
    id: alert

    property string message

    signal okTapped()

    anchors.centerIn: Overlay.overlay
    width: 270
    padding: 0
    modal: true
    closePolicy: Popup.NoAutoClose
    Overlay.modal: Rectangle { color: Theme.scrim }

    background: Rectangle {
        radius: 14
        color: Theme.alertBackground
    }

    contentItem: Column {
        Column {
            width: parent.width
            padding: 16
            spacing: 4

            Text {
                width: parent.width - 32
                horizontalAlignment: Text.AlignHCenter
                text: "Notification"
                Accessible.role: Accessible.Heading
                Accessible.name: text
                font.pixelSize: Theme.headlineSize
                font.weight: Font.DemiBold
                color: Theme.label
            }
            Text {
                width: parent.width - 32
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                text: alert.message
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
                font.pixelSize: 13
                color: Theme.label
            }
        }
        Rectangle {
            width: parent.width
            height: 1
            color: Theme.separator
        }
        AbstractButton {
            objectName: "alertOk"
            text: "OK"
            Accessible.name: text
            width: parent.width
            height: 44
            onClicked: {
                alert.close();
                alert.okTapped();
            }
            contentItem: Text {
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                text: parent.text
                font.pixelSize: Theme.headlineSize
                font.weight: Font.DemiBold
                color: Theme.blue
            }
        }
    }
}
