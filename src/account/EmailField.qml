// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

// Where an e-mail address is typed: the keyboard offers "@" and leaves the
// first letter small.
AccountField {
    objectName: "emailField"
    inputMethodHints: Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
}
