// SPDX-License-Identifier: GPL-3.0-or-later
import Tarnelo 1.0

// Who the emergency contact is to the user. The title is the one this sheet
// has always had, smoker question and all.
OptionWheelSheet {
    property ProfileMedicalViewModel viewModel

    title: "Are a smocker?"
    options: viewModel.option
    value: viewModel.relationship
    presented: viewModel.isPickerPresented1
    onPicked: option => viewModel.relationship = option
    onDismissed: viewModel.isPickerPresented1 = false
}
