// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// The weather at the user's position.
Rectangle {
    id: weather

    readonly property MainWeatherViewModel model: MainWeatherViewModel {}

    implicitHeight: content.implicitHeight + 32
    radius: 20
    color: Theme.weatherPanel

    // Below the fold at start: laid out once the first frame is out.
    Loader {
        id: content
        anchors.fill: parent
        anchors.margins: 16
        active: FirstFrameGate.open

        sourceComponent: Column {
            spacing: 12

            T.Label {
                text: "WEATHER UPDATES"
                Accessible.role: Accessible.Heading
                Accessible.name: text
                font.pixelSize: Theme.headlineSize
                font.bold: true
                color: Theme.white
            }

            WeatherGrid {
                width: parent.width
                columns: 3
                source: weather.model
            }
        }
    }
}
