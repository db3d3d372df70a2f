// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

// A tip's illustration by name ("indoors"), stretched to its size and drawn
// sharp at that size.
Image {
    property string name

    source: name ? "qrc:/images/" + name + ".svg" : ""
    sourceSize: Qt.size(width, height)
}
