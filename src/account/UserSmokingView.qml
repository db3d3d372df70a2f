// SPDX-License-Identifier: GPL-3.0-or-later
import Tarnelo 1.0

// Whether the user smokes.
OptionWheelSheet {
    property ProfileMedicalViewModel viewModel

    title: "Are you smoking?"
    options: viewModel.optionsq
    value: viewModel.smokingstatus
    presented: viewModel.isPickerPresented2
    onPicked: option => viewModel.smokingstatus = option
    onDismissed: viewModel.isPickerPresented2 = false
}
