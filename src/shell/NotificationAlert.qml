// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// The app's one alert: the title "Notification", a message and a single "OK".
T.Popup {
    id: alert

    property string message

    signal okTapped()

    anchors.centerIn: T.Overlay.overlay
    width: 270
    implicitHeight: contentHeight
    padding: 0
    modal: true
    closePolicy: T.Popup.NoAutoClose
    T.Overlay.modal: Rectangle { color: Theme.scrim }

    background: Rectangle {
        radius: 14
        color: Theme.alertBackground
    }

    // Most screens never show their alert: its text is laid out once it opens.
    contentItem: Loader {
        active: alert.visible

        sourceComponent: Column {
            Column {
                width: parent.width
                padding: 16
                spacing: 4

                T.Label {
                    width: parent.width - 32
                    horizontalAlignment: Text.AlignHCenter
                    text: "Notification"
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                    font.pixelSize: Theme.headlineSize
                    font.weight: Font.DemiBold
                    color: Theme.label
                }
                T.Label {
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
            PlainButton {
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
}
