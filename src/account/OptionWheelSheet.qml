// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// One choice from a short list as a sheet: its title over a wheel of
// the options, and "Close". An option counts as picked once the wheel comes
// to rest on it.
BottomSheet {
    id: sheet

    property alias title: titleText.text
    property var options: []
    property string value
    property bool presented

    signal picked(string option)
    signal dismissed()

    visible: sheet.presented
    onClosed: sheet.dismissed()
    // The wheel may have been left elsewhere last time, or the value changed since.
    onAboutToShow: wheel.currentIndex = Math.max(0, sheet.options.indexOf(sheet.value))

    contentItem: Column {
        spacing: 8

        T.Label {
            id: titleText
            objectName: "sheetTitle"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: Theme.headlineSize
            font.weight: Font.DemiBold
            color: Theme.label
        }

        DateWheel {
            id: wheel
            objectName: "optionWheel"
            width: parent.width
            height: 120
            model: sheet.options.length
            wrap: false
            label: index => sheet.options[index]
            onSettled: sheet.picked(sheet.options[currentIndex])
        }

        FilledButton {
            objectName: "closePicker"
            x: 24
            width: parent.width - 48
            text: "Close"
            onClicked: sheet.dismissed()
        }
    }
}
