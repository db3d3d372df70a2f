// SPDX-License-Identifier: GPL-3.0-or-later
pragma Singleton
import QtQuick 2.15

// Colours and type sizes of the whole app, in one place.
QtObject {
    // system colours
    readonly property color green: "#34C759"
    readonly property color yellow: "#FFCC00"
    readonly property color orange: "#FF9500"
    readonly property color red: "#FF3B30"
    readonly property color purple: "#AF52DE"
    readonly property color blue: "#007AFF"
    readonly property color gray: "#8E8E93"
    readonly property color white: "#FFFFFF"
    readonly property color black: "#000000"

    // the app's own named colours, beside the system ones above: table text,
    // the pollutant cards, and the scale's two darkest categories
    readonly property color kOthers: "#3A3A3C"
    readonly property color kPrimary: "#2F5D8A"
    readonly property color assetPurple: "#8F3F97"
    readonly property color maroon: "#7E0023"

    // surfaces and text
    readonly property color background: "#F2F2F7"
    readonly property color surface: white
    readonly property color separator: "#C6C6C8"
    readonly property color label: black
    readonly property color secondaryLabel: "#3C3C43"
    readonly property color scrim: Qt.rgba(0, 0, 0, 0.2)
    readonly property color alertBackground: "#F7F7F7"

    // type sizes, in pixels
    readonly property int titleSize: 28
    readonly property int headlineSize: 17
    readonly property int bodySize: 17
    readonly property int captionSize: 12

    // motion
    readonly property int defaultAnimationDuration: 350
}
