// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The frame every account screen shares: a heading and a title over the
// screen's own fields, scrollable when the window is short, the progress
// indicator while a request runs and the alert the model raises.
Rectangle {
    id: page

    property AccountScreenModel model
    property alias heading: headingText.text
    property alias title: titleText.text
    // A screen opened over another one in a StackView may offer a way back.
    property bool showsBack: false
    default property alias fields: fieldColumn.data

    color: Theme.background

    Flickable {
        objectName: "scroller"
        anchors.fill: parent
        contentHeight: column.implicitHeight + 2 * column.y
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: column
            x: 24
            y: 28
            width: page.width - 2 * x
            spacing: 6

            LinkButton {
                objectName: "backButton"
                visible: page.showsBack && page.StackView.view !== null
                leftPadding: 0
                text: "‹ Back"
                onClicked: page.StackView.view.pop()
            }

            T.Label {
                id: headingText
                objectName: "pageHeading"
                width: parent.width
                wrapMode: Text.Wrap
                font.pixelSize: Theme.titleSize
                font.weight: Font.Bold
                color: Theme.label
            }

            T.Label {
                id: titleText
                objectName: "pageTitle"
                font.pixelSize: 15
                font.weight: Font.DemiBold
                font.letterSpacing: 1.2
                color: Theme.kPrimary
            }

            Column {
                id: fieldColumn
                width: parent.width
                topPadding: 22
                spacing: 14
            }
        }
    }

    BusyIndicator {
        objectName: "progress"
        anchors.centerIn: parent
        running: page.model.isLoading
        visible: running
    }

    NotificationAlert {
        objectName: "alert"
        message: page.model.alertMessage
        visible: page.model.showingAlert
        onOkTapped: page.model.alertAccepted()
    }
}
