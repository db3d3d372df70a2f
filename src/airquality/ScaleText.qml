// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// The text of the index scale's table.
T.Label {
    wrapMode: Text.WordWrap
    verticalAlignment: Text.AlignVCenter
    font.pixelSize: 14
    color: Theme.kOthers
}
