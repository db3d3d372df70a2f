// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// The text of the index scale's table.
Text {
    wrapMode: Text.WordWrap
    verticalAlignment: Text.AlignVCenter
    font.pixelSize: 14
    color: Theme.kOthers
}
