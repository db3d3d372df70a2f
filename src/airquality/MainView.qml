// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// The dashboard: how clean the air is where the user stands, and the weather.
Flickable {
    id: dashboard

    // The header's link to the past week, for the shell to open over the dashboard.
    signal historyRequested()

    contentHeight: panels.implicitHeight + 32
    clip: true

    // Pulled down past this and let go, the dashboard asks for its readings again.
    readonly property real refreshPull: 72

    onDragEnded: {
        if (dashboard.contentY < -dashboard.refreshPull) {
            header.model.refresh();
            weather.model.refresh();
        }
    }

    T.Label {
        objectName: "pullHint"
        anchors.horizontalCenter: parent.horizontalCenter
        y: -height - 8
        visible: dashboard.contentY < 0
        text: dashboard.contentY < -dashboard.refreshPull ? "Release to refresh" : "Pull to refresh"
        font.pixelSize: Theme.captionSize + 1
        color: Theme.secondaryLabel
    }

    Column {
        id: panels
        x: 16
        y: 16
        width: parent.width - 32
        spacing: 16

        MainHeaderView {
            id: header
            width: parent.width
            onHistoryRequested: dashboard.historyRequested()
        }
        MainCategoryView {
            width: parent.width
        }
        MainIndoorsView {
            width: parent.width
            outdoorIndex: header.model.txt_aqi
        }
        MainWeatherView {
            id: weather
            width: parent.width
        }
    }
}
