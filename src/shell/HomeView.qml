// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The spine of the interface: navigation bar, one destination, the bottom tabs
// and the side menu over them.
Item {
    id: home

    readonly property HomeViewModel model: HomeViewModel {}

    function showDestination() {
        const view = home.model.destinationView;
        destination.source = "";
        destination.source = view ? Qt.resolvedUrl(view + ".qml") : "";
    }

    Component.onCompleted: {
        home.model.loadUserName();
        showDestination();
    }

    Connections {
        target: home.model
        function onDestinationChanged() { home.showDestination(); }
    }

    NavigationBar {
        id: navigationBar
        width: parent.width
        z: 2
        title: home.model.currentKey
        onMenuTapped: home.model.toggleSideMenu()
        onUserTapped: home.model.userIconTapped()
    }

    Loader {
        id: destination
        objectName: "destination"
        anchors.top: navigationBar.bottom
        anchors.bottom: tabBar.top
        width: parent.width
    }

    BottomTabBar {
        id: tabBar
        anchors.bottom: parent.bottom
        width: parent.width
        symbols: home.model.bottomTabs
        names: home.model.bottomTabNames
        selectedIndex: home.model.selectedTab
        onTabTapped: home.model.selectTab(index)
    }

    // A tap anywhere on the content beside the open menu closes it.
    MouseArea {
        objectName: "contentScrim"
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

    SideMenuView {
        id: sideMenu
        objectName: "sideMenu"
        anchors.top: navigationBar.bottom
        anchors.bottom: parent.bottom
        z: 1
        x: home.model.isSideMenuOpen ? 0 : -width - 6
        visible: x > -width - 6
        sideMenuItems: home.model.sideMenuItems
        additionalItems: home.model.additionalTextItems
        selectedMenuItem: home.model.selectedMenuItem
        user_name: home.model.user_name
        onItemTapped: home.model.selectMenuItem(name)
        onAdditionalItemTapped: home.model.tapAdditionalItem(text)

        Behavior on x { NumberAnimation { duration: Theme.defaultAnimationDuration; easing.type: Easing.InOutQuad } }
    }

    NotificationAlert {
        message: home.model.alertMessage2
        visible: home.model.showingAlert2
        onClosed: home.model.showingAlert2 = false
    }
}
