// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

// The personal bio's gender sheet: the registration sheet, on the bio's model.
PickerSingupView {
    objectName: "genderPicker"
}
