// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Window 2.15
import Tarnelo 1.0

// The app's one window; its whole content is the home shell or, after the
// account flows ask for it, a fresh login screen.
Window {
    id: window

    function showRoot() {
        root.source = "";
        root.source = Qt.resolvedUrl(RootController.rootView + ".qml");
    }

    width: 390
    height: 844
    visible: true
    title: "Tarnelo"
    color: Theme.background

    Component.onCompleted: showRoot()

    Connections {
        target: RootController
        function onRootReplaced() {
            window.showRoot();
            window.raise();
            window.requestActivate();
        }
    }

    Loader {
        id: root
        anchors.fill: parent
        focus: true
    }
}
