// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// A blurred-looking shadow around a rounded panel of the same size. The
// software renderer has no blur, so it is a few translucent rings that fade
// outwards; where they all overlap, at the panel's edge, it is darkest.
Item {
    id: shadow

    property real radius
    property real spread: 10
    property real strength: 0.33
    readonly property int rings: 5

    Repeater {
        model: shadow.rings

        Rectangle {
            readonly property real grow: shadow.spread * (index + 1) / shadow.rings

            x: -grow
            y: -grow
            width: shadow.width + 2 * grow
            height: shadow.height + 2 * grow
            radius: shadow.radius + grow
            color: Theme.black
            opacity: shadow.strength / shadow.rings
        }
    }
}
