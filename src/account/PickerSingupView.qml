// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The gender choice of a personal details form as a sheet rising from the
// bottom: one row per option, the chosen one ticked, and "Close".
BottomSheet {
    id: sheet

    property PersonalDetailsModel viewModel

    visible: sheet.viewModel.isPickerPresented
    onClosed: sheet.viewModel.isPickerPresented = false

    contentItem: Column {
        spacing: 4

        T.Label {
            width: parent.width
            bottomPadding: 8
            horizontalAlignment: Text.AlignHCenter
            text: "Gender"
            font.pixelSize: Theme.headlineSize
            font.weight: Font.DemiBold
            color: Theme.label
        }

        Repeater {
            model: sheet.viewModel.options

            // A plain button rather than a list delegate: a list item offers
            // no press action to a screen reader.
            AbstractButton {
                required property string modelData
                objectName: "option_" + modelData
                text: modelData
                Accessible.name: text
                Accessible.role: Accessible.RadioButton
                Accessible.checked: modelData === sheet.viewModel.selectedOption
                width: parent.width
                height: 48
                leftPadding: 24
                rightPadding: 24
                onClicked: sheet.viewModel.chooseOption(modelData)
                background: Rectangle { color: parent.down ? Theme.background : "transparent" }

                contentItem: Text {
                    text: parent.text
                    verticalAlignment: Text.AlignVCenter
                    font.pixelSize: Theme.bodySize
                    font.weight: modelData === sheet.viewModel.selectedOption ? Font.DemiBold : Font.Normal
                    color: modelData === sheet.viewModel.selectedOption ? Theme.blue : Theme.label
                }
            }
        }

        FilledButton {
            objectName: "closePicker"
            x: 24
            width: parent.width - 48
            text: "Close"
            onClicked: sheet.viewModel.isPickerPresented = false
        }
    }
}
