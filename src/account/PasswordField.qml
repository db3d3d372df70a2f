// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

// Where a password is typed: hidden, and kept from the keyboard's memory.
AccountField {
    objectName: "passwordField"
    echoMode: TextInput.Password
    inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
}
