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
    // A shade darker than the system blue (#007AFF, 4.0:1 on white): as
    // text on white and under white text it reads at 4.5:1 or better.
    readonly property color blue: "#0066CC"
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
    // dates, placeholders and other quiet text; the system gray is too light
    // for text (3.3:1 on white) and stays for symbols
    readonly property color tertiaryLabel: "#6C6C70"
    // a grey dark enough under white text
    readonly property color weatherPanel: "#636366"
    // laid over a coloured panel behind a reading; darkening keeps the
    // panel's white text readable where a light veil would not
    readonly property color tileTint: Qt.rgba(0, 0, 0, 0.15)
    readonly property color scrim: Qt.rgba(0, 0, 0, 0.2)
    readonly property color alertBackground: "#F7F7F7"

    // type sizes, in pixels
    readonly property int titleSize: 28
    readonly property int headlineSize: 17
    readonly property int bodySize: 17
    readonly property int captionSize: 12

    // motion
    readonly property int defaultAnimationDuration: 350
    // On a wide window the screens keep to a column this wide, centred.
    readonly property int readableWidth: 640
}
