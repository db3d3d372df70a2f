// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// The dashboard: how clean the air is where the user stands, and the weather.
Flickable {
    contentHeight: panels.implicitHeight + 32
    clip: true

    Column {
        id: panels
        x: 16
        y: 16
        width: parent.width - 32
        spacing: 16

        MainHeaderView {
            id: header
            width: parent.width
        }
        MainCategoryView {
            width: parent.width
        }
        MainIndoorsView {
            width: parent.width
            outdoorIndex: header.model.txt_aqi
        }
        MainWeatherView {
            width: parent.width
        }
    }
}
