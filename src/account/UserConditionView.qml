// SPDX-License-Identifier: GPL-3.0-or-later
import Tarnelo 1.0

// Whether the user has a medical condition.
OptionWheelSheet {
    property ProfileMedicalViewModel viewModel

    title: "Any Condintion?"
    options: viewModel.options
    value: viewModel.condition
    presented: viewModel.isPickerPresented
    onPicked: option => viewModel.condition = option
    onDismissed: viewModel.isPickerPresented = false
}
