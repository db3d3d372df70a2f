// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// A line of a profile card, wrapped rather than cut when it is long.
T.Label {
    width: parent ? parent.width : implicitWidth
    wrapMode: Text.Wrap
    font.pixelSize: 15
    color: Theme.secondaryLabel
}
