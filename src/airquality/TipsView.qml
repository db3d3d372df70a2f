// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import Tarnelo 1.0

// Health tips: the pollutants at the user's position, each on its scale, and
// what to do when the air is bad, over a quiet sky.
Item {
    id: tips

    readonly property TipsViewModel model: TipsViewModel {}

    clip: true

    Image {
        anchors.fill: parent
        source: "qrc:/images/clouds_logo.svg"
        fillMode: Image.PreserveAspectCrop
        sourceSize: Qt.size(width, height)
    }

    Flickable {
        objectName: "scroller"
        anchors.fill: parent
        contentHeight: content.implicitHeight
        ScrollIndicator.vertical: ScrollIndicator {}

        Column {
            id: content
            width: parent.width
            padding: 20
            topPadding: 16
            bottomPadding: 40
            spacing: 20

            Column {
                spacing: 4

                T.Label {
                    text: "POLLUTANTS"
                    font.pixelSize: Theme.headlineSize
                    font.bold: true
                    color: Theme.label
                }
                T.Label {
                    text: "Volatile organic compounds (VOCs gases)"
                    font.pixelSize: Theme.captionSize + 3
                    color: Theme.kOthers
                }
            }

            GridLayout {
                id: pollutants
                width: parent.width - 2 * parent.padding
                columns: 2
                columnSpacing: 20
                rowSpacing: 20

                Repeater {
                    model: [["Carbon Monoxide (CO)", "txt_co"], ["Nitric Oxide (NO)", "txt_no"],
                        ["Nitrogen Dioxide (NO2)", "txt_no2"], ["Ozone Gas (O3)", "txt_o3"],
                        ["Sulfur Dioxide (SO2)", "txt_so2"], ["Ammonia (NH3)", "txt_nh3"],
                        ["Particulate Matter (PM10)", "txt_pm10"], ["Particulate Matter (PM2.5)", "txt_pm25"]]

                    PollutantCard {
                        objectName: "pollutant_" + index
                        Layout.preferredWidth: (pollutants.width - pollutants.columnSpacing) / 2
                        Layout.fillHeight: true
                        title: modelData[0]
                        reading: tips.model[modelData[1]]
                    }
                }
            }

            HealthRecommendations {
                width: parent.width - 2 * parent.padding
            }
        }
    }
}
