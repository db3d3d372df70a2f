// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import QtTest 1.15

// The subscription screen as a person uses it: packages, the package sheet,
// the payment channels, "Subscribe" and the way back to the overview.
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

        function init() {
            warnings.restart();
            window.view = Qt.createComponent("qrc:/qml/ProfileSubscriptionView.qml").createObject(window, { width: 390, height: 844 });
            verify(window.view, "the subscription screen builds");
        }

        function cleanup() {
            window.view.destroy();
            wait(0);
            compare(warnings.count(), 0, "nothing printed a warning");
        }

        function test_packagesAndOneChannelThenSubscribe() {
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
        }

        function test_packageSheet() {
            mouseClick(find("packageButton"));
            const picker = find("packagePicker");
            tryVerify(() => picker.position === 1 && picker.y + picker.height === window.height, 2000, "the sheet sits on the bottom edge");
            const wheel = findChild(picker.contentItem, "optionWheel");
            mouseDrag(wheel, wheel.width / 2, wheel.height / 2, 0, -wheel.height / 3);
            tryCompare(window.view.viewModel, "selectedOption", "Premium", 3000);
            verify(find("package_Premium").isSelected, "the radio rows follow the wheel");
            mouseClick(findChild(picker.contentItem, "closePicker"));
            verify(!window.view.viewModel.isPickerPresented);
            tryVerify(() => !picker.visible, 2000);
        }

        function test_backReturnsToTheScreenUnder() {
            const stack = Qt.createQmlObject("import QtQuick.Controls 2.15; StackView { width: 390; height: 844 }", window);
            stack.push(Qt.createQmlObject("import QtQuick 2.15; Item {}", stack));
            const pushed = stack.push("qrc:/qml/ProfileSubscriptionView.qml");
            tryVerify(() => !stack.busy, 2000);
            const back = findChild(pushed, "backButton");
            verify(back.visible);
            mouseClick(back);
            tryVerify(() => stack.depth === 1 && !stack.busy, 2000);
            stack.destroy();
        }
    }
}
