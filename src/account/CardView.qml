// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// One section of the profile: a white card with its title over its lines.
Rectangle {
    id: card

    property alias title: titleText.text
    default property alias content: lines.data

    width: parent ? parent.width : 0
    height: lines.implicitHeight + 2 * lines.y
    radius: 12
    color: Theme.surface
    border.color: Theme.separator

    Column {
        id: lines
        x: 16
        y: 14
        width: card.width - 2 * x
        spacing: 6

        T.Label {
            id: titleText
            width: parent.width
            bottomPadding: 4
            wrapMode: Text.Wrap
            font.pixelSize: Theme.headlineSize
            font.weight: Font.DemiBold
            color: Theme.kPrimary
        }
    }
}
