// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

// One of the app's symbols ("house.fill", ...), drawn in a colour at a size.
Image {
    id: icon

    property string name
    property color color: "black"
    property int size: 24

    width: size
    height: size
    sourceSize: Qt.size(size, size)
    fillMode: Image.PreserveAspectFit
    source: name ? "image://symbol/" + name + "?" + color : ""
}
