// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The air of the past seven days where the user is: the hourly level as a line
// over the week and the worst of each day, newest first. Shown over the
// dashboard like a pushed page; the back button asks to close it.
Rectangle {
    id: page

    property HistoryViewModel model: HistoryViewModel {}
    // Levels 1 to 5 in the system colours.
    readonly property var levelColors: [Theme.green, Theme.yellow, Theme.orange, Theme.red, Theme.purple]

    signal closeRequested()

    color: Theme.background

    Rectangle {
        id: titleBar
        width: parent.width
        height: 52
        z: 1
        color: Theme.background

        SymbolButton {
            objectName: "backButton"
            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            symbol: "chevron.left"
            label: "Back"
            onClicked: page.closeRequested()
        }
        T.Label {
            objectName: "title"
            anchors.centerIn: parent
            width: parent.width - 120
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideRight
            text: page.model.title
            font.pixelSize: Theme.headlineSize
            font.weight: Font.DemiBold
            color: Theme.label
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.separator
        }
    }

    Flickable {
        anchors.top: titleBar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        contentHeight: readings.implicitHeight + 28
        clip: true
        visible: page.model.state === HistoryViewModel.Ready

        Column {
            id: readings
            y: 12
            width: parent.width
            spacing: 8

            // As wide as the screen allows, so that every day's date fits.
            Loader {
                objectName: "chart"
                x: 4
                width: parent.width - 8
                active: page.model.state === HistoryViewModel.Ready
                sourceComponent: HistoryViewChart {
                    model: page.model
                    levelColors: page.levelColors
                }
            }
            T.Label {
                x: 16
                topPadding: 12
                text: "Worst hour of each day"
                font.pixelSize: Theme.captionSize + 1
                font.weight: Font.DemiBold
                font.capitalization: Font.AllUppercase
                color: Theme.secondaryLabel
            }
            Repeater {
                model: page.model.days
                HistoryViewDayRow {
                    required property var modelData
                    x: 16
                    width: readings.width - 32
                    dayName: modelData.dayName
                    date: modelData.date
                    levelName: page.model.levelNames[modelData.level - 1]
                    levelColor: page.levelColors[modelData.level - 1]
                    peak: modelData.peak
                }
            }
        }
    }

    BusyIndicator {
        objectName: "loading"
        anchors.centerIn: parent
        running: page.model.state === HistoryViewModel.Loading
        visible: running
    }

    HistoryViewMessage {
        objectName: "emptyState"
        visible: page.model.state === HistoryViewModel.Empty
        symbol: "chart.xyaxis.line"
        heading: "No readings for the past week"
        detail: "The history service has no hourly readings for this place yet."
    }

    HistoryViewMessage {
        objectName: "failureState"
        visible: page.model.state === HistoryViewModel.Failed
        symbol: "exclamationmark.triangle"
        heading: "The past week could not be loaded"
        detail: "Check the connection, then try again."

        FilledButton {
            objectName: "tryAgain"
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Try again"
            Accessible.name: text
            onClicked: page.model.retry()
        }
    }
}
