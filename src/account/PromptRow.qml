// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// A question and the link that answers it, centred under a form:
// "Don't have an account?" "Register Now".
Row {
    id: row

    property alias prompt: promptText.text
    property alias linkText: link.text
    property alias linkName: link.objectName

    signal linkTapped()

    anchors.horizontalCenter: parent.horizontalCenter

    T.Label {
        id: promptText
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 15
        color: Theme.secondaryLabel
    }

    LinkButton {
        id: link
        onClicked: row.linkTapped()
    }
}
