// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

// Where a password is typed: hidden, and kept from the keyboard's memory.
// Qt Quick hands a password field's text in clear to accessibility tools, so
// screen readers meet this scope, marked as a password edit, and never the
// field that holds the text.
FocusScope {
    id: field

    property string placeholderText
    // Not "text": accessibility tools read an edit's "text" property.
    readonly property alias password: input.text

    signal textEdited()
    signal accepted()

    objectName: "passwordField"
    width: parent ? parent.width : implicitWidth
    height: input.height
    activeFocusOnTab: true
    Accessible.role: Accessible.EditableText
    // Qt gives a password edit no name, so what it asks for is its description.
    Accessible.passwordEdit: true
    Accessible.description: placeholderText
    Accessible.focusable: true
    Accessible.focused: input.activeFocus

    AccountField {
        id: input
        focus: true
        placeholderText: field.placeholderText
        echoMode: TextInput.Password
        inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
        Accessible.ignored: true
        onTextEdited: field.textEdited()
        onAccepted: field.accepted()
    }
}
