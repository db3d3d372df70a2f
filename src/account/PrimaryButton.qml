// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

// The one action of an account screen, as wide as its fields.
FilledButton {
    width: parent ? parent.width : implicitWidth
    height: 52
}
