// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import Tarnelo 1.0

// Air alerts for the signed-in user: on or off, the level that triggers one
// and why it is set there, and the alerts received so far.
Rectangle {
    id: card

    readonly property AirAlertSettingsModel model: AirAlertSettingsModel {}
    readonly property var levelColors: [Theme.green, Theme.yellow, Theme.orange, Theme.red, Theme.purple, Theme.maroon]

    implicitHeight: content.implicitHeight + 28
    radius: 12
    color: Theme.surface

    Column {
        id: content
        x: 14
        y: 14
        width: parent.width - 28
        spacing: 8

        RowLayout {
            width: parent.width
            Label {
                Layout.fillWidth: true
                text: "Air alerts"
                font.pixelSize: Theme.bodySize
                font.weight: Font.DemiBold
                color: Theme.label
            }
            Switch {
                objectName: "airAlertsSwitch"
                checked: card.model.enabled
                Accessible.name: "Air alerts"
                onToggled: card.model.enabled = checked
            }
        }
        RowLayout {
            width: parent.width
            Label {
                text: "Warn me from"
                font.pixelSize: 15
                color: Theme.label
            }
            ComboBox {
                objectName: "alertLevel"
                Layout.fillWidth: true
                enabled: card.model.enabled && card.model.level > 0
                model: card.model.levelNames
                currentIndex: card.model.level - 1
                displayText: card.model.level > 0 ? currentText : "—"
                Accessible.name: "Alert level"
                Accessible.onPressAction: popup.open()
                onActivated: index => card.model.level = index + 1
            }
        }
        Label {
            objectName: "alertReason"
            width: parent.width
            wrapMode: Text.Wrap
            text: card.model.reason
            font.pixelSize: 13
            color: Theme.secondaryLabel
        }

        Repeater {
            model: card.model.receivedAlerts
            RowLayout {
                required property var modelData
                objectName: "receivedAlert"
                width: content.width
                spacing: 8
                Rectangle {
                    width: 10
                    height: 10
                    radius: 5
                    color: card.levelColors[modelData.category - 1]
                }
                Label {
                    Layout.fillWidth: true
                    elide: Text.ElideRight
                    text: modelData.level + (modelData.town ? " in " + modelData.town : "")
                    font.pixelSize: 14
                    color: Theme.label
                }
                Label {
                    text: modelData.time
                    font.pixelSize: 13
                    color: Theme.secondaryLabel
                }
            }
        }
    }
}
