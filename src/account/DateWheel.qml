// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// One wheel of the date picker: three rows showing, the middle one chosen.
// It reports a choice once it comes to rest, not on every row it passes,
// or when a row is tapped.
Tumbler {
    id: wheel

    // The text of the row at an index.
    property var label: index => String(index + 1)

    signal settled()

    visibleItemCount: 3
    onMovingChanged: if (!moving) wheel.settled()

    delegate: Text {
        id: row

        required property int index

        function choose() {
            wheel.currentIndex = index;
            wheel.settled();
        }

        text: wheel.label(index)
        Accessible.role: Accessible.Button
        Accessible.name: text
        Accessible.onPressAction: row.choose()
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: Theme.bodySize
        font.weight: index === wheel.currentIndex ? Font.DemiBold : Font.Normal
        color: Theme.label
        opacity: 1 - Math.abs(Tumbler.displacement) * 0.6

        // A pointer can pick a row by tapping it as well as by turning the wheel.
        TapHandler {
            onTapped: row.choose()
        }
    }
}
