// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// The spine of the interface: navigation bar, one destination, the bottom tabs
// and the side menu over them.
Item {
    id: home

    readonly property HomeViewModel model: HomeViewModel {}

    function showDestination() {
        const view = home.model.destinationView;
        home.closePage();
        destination.source = "";
        destination.source = view ? Qt.resolvedUrl(view + ".qml") : "";
    }

    // A page over the destination and its title, as a phone pushes a detail
    // screen: the tabs stay, the page's own title bar has the way back.
    function openPage(view) {
        page.source = Qt.resolvedUrl(view + ".qml");
    }

    function closePage() {
        page.source = "";
    }

    Component.onCompleted: {
        home.model.loadUserName();
        showDestination();
        const atStart = RootController.takePageAtStart();
        if (atStart)
            openPage(atStart);
    }

    Connections {
        target: home.model
        function onDestinationChanged() { home.showDestination(); }
    }

    Connections {
        target: destination.item
        ignoreUnknownSignals: true
        function onHistoryRequested() { home.openPage("HistoryView"); }
    }

    Connections {
        target: page.item
        ignoreUnknownSignals: true
        function onCloseRequested() { home.closePage(); }
    }

    NavigationBar {
        id: navigationBar
        width: parent.width
        z: 2
        title: home.model.currentKey
        onMenuTapped: home.model.toggleSideMenu()
        onUserTapped: home.model.userIconTapped()
    }

    // The map uses the whole window; every other screen a readable column.
    Loader {
        id: destination
        objectName: "destination"
        anchors.top: navigationBar.bottom
        anchors.bottom: tabBar.top
        anchors.horizontalCenter: parent.horizontalCenter
        width: home.model.destinationView === "SearchLocationView" ? parent.width : Math.min(parent.width, Theme.readableWidth)
    }

    BottomTabBar {
        id: tabBar
        anchors.bottom: parent.bottom
        width: parent.width
        symbols: home.model.bottomTabs
        names: home.model.bottomTabNames
        selectedIndex: home.model.selectedTab
        onTabTapped: {
            home.closePage();
            home.model.selectTab(index);
        }
    }

    Loader {
        id: page
        objectName: "page"
        anchors.top: parent.top
        anchors.bottom: tabBar.top
        width: parent.width
        z: 3
        onLoaded: slideIn.start()

        NumberAnimation {
            id: slideIn
            target: page
            property: "x"
            from: home.width
            to: 0
            duration: 250
            easing.type: Easing.OutCubic
        }
    }

    // A tap anywhere on the content beside the open menu closes it.
    MouseArea {
        objectName: "contentScrim"
        // Not a control: the menu's own "Close Menu" does this for a screen reader.
        Accessible.ignored: true
        anchors.top: navigationBar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        z: 1
        enabled: home.model.isSideMenuOpen
        onClicked: home.model.closeSideMenu()

        Rectangle {
            anchors.fill: parent
            color: Theme.scrim
            opacity: home.model.isSideMenuOpen ? 1 : 0
            Behavior on opacity { NumberAnimation { duration: Theme.defaultAnimationDuration } }
        }
    }

    // The menu's place and slide; what it lists is built the first time it
    // opens, as nobody sees it before.
    Item {
        id: sideMenu
        objectName: "sideMenu"
        anchors.top: navigationBar.bottom
        anchors.bottom: parent.bottom
        width: 220
        z: 1
        x: home.model.isSideMenuOpen ? 0 : -width - 6
        visible: x > -width - 6

        Behavior on x { NumberAnimation { duration: Theme.defaultAnimationDuration; easing.type: Easing.InOutQuad } }

        FirstUseLoader {
            anchors.fill: parent
            // Built once the first frame is out, so that even its first
            // opening moves in the next frame.
            wanted: home.model.isSideMenuOpen || FirstFrameGate.open

            sourceComponent: SideMenuView {
                sideMenuItems: home.model.sideMenuItems
                additionalItems: home.model.additionalTextItems
                selectedMenuItem: home.model.selectedMenuItem
                user_name: home.model.user_name
                onItemTapped: home.model.selectMenuItem(name)
                onAdditionalItemTapped: home.model.tapAdditionalItem(text)
            }
        }
    }

    NotificationAlert {
        message: home.model.alertMessage2
        visible: home.model.showingAlert2
        onClosed: home.model.showingAlert2 = false
    }
}
