// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// The eight pollutant readings, four to a row.
Grid {
    id: grid

    // Anything with txt_co, txt_no, ... txt_nh3.
    property QtObject source
    property real tileHeight: 64

    columns: 4
    spacing: 8

    Repeater {
        model: [["CO", "txt_co"], ["NO", "txt_no"], ["NO2", "txt_no2"], ["O3", "txt_o3"],
            ["SO2", "txt_so2"], ["PM2.5", "txt_pm25"], ["PM10", "txt_pm10"], ["NH3", "txt_nh3"]]
        ReadingTile {
            objectName: "tile_" + modelData[0]
            width: (grid.width - 3 * grid.spacing) / 4
            height: grid.tileHeight
            label: modelData[0]
            value: grid.source[modelData[1]]
        }
    }
}
