// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// A line of a profile card, wrapped rather than cut when it is long.
Text {
    width: parent ? parent.width : implicitWidth
    wrapMode: Text.Wrap
    font.pixelSize: 15
    color: Theme.secondaryLabel
}
