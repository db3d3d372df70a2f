// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The signed-in user's notifications, fetched afresh each time the screen
// appears; while there are none it says why.
Rectangle {
    id: screen

    readonly property NotificationViewModel viewModel: NotificationViewModel {}

    color: Theme.background
    Component.onCompleted: screen.viewModel.fetch()

    ListView {
        id: list
        objectName: "notificationList"
        anchors.fill: parent
        topMargin: 16
        bottomMargin: 16
        spacing: 12
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: screen.viewModel.notifications

        // Air alerts first, for a signed-in user; then, after a failed fetch,
        // why it failed, above whatever an earlier one showed.
        header: Column {
            width: list.width
            spacing: list.spacing

            AirAlertSettings {
                id: airAlerts
                x: 16
                width: parent.width - 32
                visible: airAlerts.model.signedIn
            }

            Item {
                readonly property alias text: errorText.text
                objectName: "fetchError"
                visible: screen.viewModel.errorMessage !== ""
                width: list.width
                height: visible ? errorCard.height + list.spacing : 0

                Rectangle {
                    id: errorCard
                    x: 16
                    width: parent.width - 32
                    height: errorText.implicitHeight
                    radius: 12
                    color: Theme.surface
                    border.color: Theme.red

                    SymbolIcon {
                        x: 12
                        y: 14
                        name: "exclamationmark.triangle"
                        color: Theme.red
                        size: 22
                    }
                    T.Label {
                        id: errorText
                        x: 44
                        width: parent.width - x - 16
                        topPadding: 14
                        bottomPadding: 14
                        wrapMode: Text.Wrap
                        text: screen.viewModel.errorMessage
                        font.pixelSize: 15
                        color: Theme.label
                    }
                }
            }
        }

        delegate: NotificationCard {
            required property var modelData
            x: 16
            width: list.width - 32
            topic: modelData.topic
            message: modelData.message
            posteddate: modelData.posteddate
            unread: modelData.unread
        }
    }

    Column {
        objectName: "emptyState"
        visible: screen.viewModel.isEmpty
        anchors.centerIn: parent
        width: parent.width - 64
        spacing: 10

        SymbolIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "bell.slash"
            color: Theme.gray
            size: 48
        }
        T.Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: "No notifications yet"
            font.pixelSize: Theme.headlineSize
            font.weight: Font.DemiBold
            color: Theme.label
        }
        T.Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: "Messages about your account and the air around you will appear here."
            font.pixelSize: 15
            color: Theme.secondaryLabel
        }
    }

    BusyIndicator {
        objectName: "progress"
        anchors.centerIn: parent
        running: screen.viewModel.isLoading
        visible: running
    }
}
