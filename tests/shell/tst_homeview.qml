// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import Tarnelo 1.0

// The home shell as a person uses it: taps on the real screen.
Item {
    id: window
    width: 390
    height: 844

    property var home

    TestCase {
        name: "HomeView"
        when: windowShown

        function find(name) {
            return findChild(window.home, name);
        }

        // The screen the content area shows, by its file name.
        function shownView() {
            const source = String(find("destination").source);
            return source.substring(source.lastIndexOf("/") + 1).replace(".qml", "");
        }

        function init() {
            window.home = Qt.createComponent("qrc:/qml/HomeView.qml").createObject(window, { width: 390, height: 844 });
            verify(window.home, "the home screen builds");
        }

        function cleanup() {
            window.home.destroy();
            wait(0);
        }

        function waitForMenu(open) {
            const menu = find("sideMenu");
            tryVerify(() => open ? menu.x === 0 : !menu.visible, 2000);
        }

        function test_menuButtonOpensAndContentTapCloses() {
            const menu = find("sideMenu");
            verify(!menu.visible);
            mouseClick(find("menuButton"));
            verify(window.home.model.isSideMenuOpen);
            waitForMenu(true);
            compare(find("userName").text, "User Name");

            mouseClick(window.home, 340, 400);
            verify(!window.home.model.isSideMenuOpen);
            waitForMenu(false);
        }

        function test_menuChoiceAndTabShowTheirDestination() {
            mouseClick(find("menuButton"));
            waitForMenu(true);
            mouseClick(find("menuItem_AQI Scale"));
            compare(window.home.model.currentKey, "AQI Scale");
            waitForMenu(false);
            compare(shownView(), "LoginView", "a guest is asked to log in");
            mouseClick(find("menuButton"));
            waitForMenu(true);
            verify(findChild(find("menuItem_AQI Scale"), "tick").visible);
            verify(!findChild(find("menuItem_Home"), "tick").visible);
            mouseClick(window.home, 340, 400);
            waitForMenu(false);
            mouseClick(find("tab0"));
            compare(shownView(), "MainView");
        }

        // The account flows replace the window's whole content, each time
        // with a fresh screen.
        function test_everyReplacementIsAFreshScreen() {
            const app = createTemporaryObject(Qt.createComponent("qrc:/qml/TarneloApp.qml"), null);
            const content = () => app.contentItem.children[0].item;
            const firstHome = content();
            verify(firstHome.model);
            RootController.showLogin();
            compare(content().objectName, "LoginView");
            RootController.showHome();
            const secondHome = content();
            verify(secondHome.model && secondHome !== firstHome);
            RootController.showHome();
            verify(content().model && content() !== secondHome);
        }
    }
}
