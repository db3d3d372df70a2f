// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtCharts 2.15
import Tarnelo 1.0

// The week's hourly levels as a line over bands in the levels' colours, the
// days along the bottom in the user's date format, the levels' words up the side.
Item {
    id: chart

    property HistoryViewModel model
    property var levelColors: []

    // Days from one labelled tick to the next: one, unless the locale's dates
    // are wider than a day on the chart.
    readonly property int labelStep: view.plotArea.width > 0
        ? Math.max(1, Math.ceil((widestDate.advanceWidth + 8) * chart.model.chartDays / view.plotArea.width)) : 1
    readonly property int ticks: Math.ceil(chart.model.chartDays / labelStep)

    implicitHeight: 300

    // Two-digit days and months in the locale's format stand for the widest date.
    TextMetrics {
        id: widestDate
        font: timeAxis.labelsFont
        text: Qt.formatDate(new Date(2000, 11, 28), chart.model.axisDateFormat)
    }

    // The bands sit behind the transparent chart rather than in it as area
    // series: five rectangles cost nothing to lay out and follow the plot area.
    Repeater {
        model: chart.levelColors
        Rectangle {
            required property int index
            required property color modelData
            x: view.plotArea.x
            width: view.plotArea.width
            height: view.plotArea.height / chart.levelColors.length
            y: view.plotArea.y + (chart.levelColors.length - 1 - index) * height
            color: modelData
            opacity: 0.35
        }
    }

    ChartView {
        id: view
        objectName: "chartView"
        anchors.fill: parent
        backgroundColor: "transparent"
        plotAreaColor: "transparent"
        backgroundRoundness: 0
        legend.visible: false
        antialiasing: true
        margins.left: 0
        margins.right: 8
        margins.top: 4
        margins.bottom: 0
        Accessible.role: Accessible.Chart
        Accessible.name: "Hourly air quality over the past 7 days"

        DateTimeAxis {
            id: timeAxis
            min: chart.model.chartStart
            // The last day is stretched to a whole step, to keep ticks on midnights.
            max: {
                const end = new Date(chart.model.chartStart);
                end.setDate(end.getDate() + chart.ticks * chart.labelStep);
                return end;
            }
            tickCount: chart.ticks + 1
            format: chart.model.axisDateFormat
            labelsFont.pixelSize: Theme.captionSize - 1
            labelsColor: Theme.secondaryLabel
            gridLineColor: Qt.rgba(0, 0, 0, 0.12)
            lineVisible: false
        }

        // Each level's word in the middle of its band.
        CategoryAxis {
            id: levelAxis
            min: 0.5
            max: chart.levelColors.length + 0.5
            startValue: 0.5
            labelsPosition: CategoryAxis.AxisLabelsPositionCenter
            labelsFont.pixelSize: Theme.captionSize - 1
            labelsColor: Theme.secondaryLabel
            gridVisible: false
            lineVisible: false
        }

        LineSeries {
            id: line
            axisX: timeAxis
            axisY: levelAxis
            color: Theme.label
            width: 2
        }

        Component.onCompleted: {
            chart.model.levelNames.forEach((name, index) => levelAxis.append(name, index + 1.5));
            chart.model.fillSeries(line);
        }
    }
}
