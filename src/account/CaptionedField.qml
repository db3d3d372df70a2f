// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// A text field with its caption above it.
Column {
    id: captioned

    property alias caption: captionText.text
    property alias fieldName: textField.objectName
    property alias placeholderText: textField.placeholderText
    property alias inputMethodHints: textField.inputMethodHints
    property string text

    signal edited(string text)

    width: parent ? parent.width : implicitWidth
    spacing: 6

    T.Label {
        id: captionText
        leftPadding: 4
        font.pixelSize: 15
        color: Theme.secondaryLabel
    }

    AccountField {
        id: textField
        text: captioned.text
        Accessible.name: captioned.caption
        onTextEdited: captioned.edited(text)
    }
}
