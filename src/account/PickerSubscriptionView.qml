// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// The package sheet: "Packages" over a wheel of the packages, and "Close".
// It is the medical profile's option sheet, whose shape it shares.
OptionWheelSheet {
    id: sheet

    property ProfileSubscriptionViewModel viewModel

    title: "Packages"
    options: sheet.viewModel.options
    value: sheet.viewModel.selectedOption
    presented: sheet.viewModel.isPickerPresented
    onPicked: option => sheet.viewModel.choosePackage(option)
    onDismissed: sheet.viewModel.isPickerPresented = false
}
