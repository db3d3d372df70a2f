// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// Temperature, wind, humidity, UV index and pollen as tiles.
Grid {
    id: grid

    // Anything with celsiusText, txt_wind, txt_humid, txt_uv and txt_pollen.
    property QtObject source

    spacing: 8

    Repeater {
        model: [["Temperature", grid.source.celsiusText], ["Wind", grid.source.txt_wind + "km/h"], ["Humidity", grid.source.txt_humid + "%"],
            ["UV index", grid.source.txt_uv], ["Pollen", grid.source.txt_pollen]]
        ReadingTile {
            objectName: "weather_" + modelData[0]
            width: (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns
            label: modelData[0]
            value: modelData[1]
        }
    }
}
