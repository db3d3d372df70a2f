// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15

// The subscription screen as a person uses it: packages, the payment
// channels and "Subscribe". The way back is pressed by the AT-SPI walk.
Item {
    id: window
    width: 390
    height: 844

    property var view

    TestCase {
        name: "SubscriptionView"
        when: windowShown

        function find(name) {
            return findChild(window.view, name);
        }

        function test_packagesAndOneChannelThenSubscribe() {
            warnings.restart();
            window.view = Qt.createComponent("qrc:/qml/ProfileSubscriptionView.qml").createObject(window, { width: 390, height: 844 });
            verify(window.view, "the subscription screen builds");
            verify(find("package_Freemium").isSelected);
            verify(!find("package_Premium").isSelected);
            compare(findChild(find("channel_1"), "checkMark").name, "circle");
            verify(!find("backButton").visible, "no way back when nothing is under it");

            mouseClick(find("benefitsHeading"));
            verify(!find("benefits").visible);
            mouseClick(find("benefitsHeading"));
            verify(find("benefits").visible);

            mouseClick(find("package_Premium"));
            verify(find("package_Premium").isSelected);
            verify(!find("package_Freemium").isSelected);

            mouseClick(find("channel_1"));
            mouseClick(find("channel_2"));
            verify(find("channel_2").checkedRow);
            verify(!find("channel_1").checkedRow, "the check mark moved");
            mouseClick(find("subscribeButton"));
            const alert = find("alert");
            tryVerify(() => alert.opened, 2000);
            verify(alert.message.includes("(VISA)"), "the tapped channel reached the model: " + alert.message);
            mouseClick(findChild(alert.contentItem, "alertOk"));
            window.view.destroy();
            wait(0);
            compare(warnings.count(), 0, "nothing printed a warning");
        }
    }
}
