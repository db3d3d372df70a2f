// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15

// The account screens as a person uses them: from the login form to
// registration and the password reset, with no backend involved. The links
// back to the login are pressed by the AT-SPI walk.
Item {
    id: window
    width: 390
    height: 750

    property var view

    TestCase {
        name: "LoginView"
        when: windowShown

        function find(name) {
            return findChild(window.view, name);
        }

        function waitForStack(depth) {
            const stack = find("accountStack");
            tryVerify(() => stack.depth === depth && !stack.busy, 2000);
        }

        function init() {
            warnings.restart();
            window.view = Qt.createComponent("qrc:/qml/LoginView.qml").createObject(window, { width: 390, height: 750 });
            verify(window.view, "the login screen builds");
        }

        function cleanup() {
            window.view.destroy();
            wait(0);
            compare(warnings.count(), 0, "nothing printed a warning");
        }

        function test_emptyLoginIsRefusedInTheAlert() {
            const form = find("accountStack").currentItem;
            mouseClick(findChild(form, "loginButton"));
            const alert = findChild(form, "alert");
            tryVerify(() => alert.opened, 2000);
            compare(alert.message, "Email address not added");
            mouseClick(findChild(alert.contentItem, "alertOk"));
            verify(!form.viewModel.showingAlert);
            tryVerify(() => !alert.visible, 2000);
        }

        function test_registerPickersShowTheModel() {
            mouseClick(find("registerNowLink"));
            waitForStack(2);
            const register = find("accountStack").currentItem;
            const today = new Date();
            compare(findChild(register, "dayWheel").currentIndex, today.getDate() - 1, "the picker shows the model's date");
            compare(findChild(register, "yearWheel").currentIndex, today.getFullYear() - 1900);

            mouseClick(findChild(register, "genderButton"));
            const picker = findChild(register, "genderPicker");
            tryVerify(() => picker.position === 1 && picker.y + picker.height === window.height, 2000, "the sheet sits on the bottom edge");
            mouseClick(findChild(picker.contentItem, "option_Female"));
            tryVerify(() => !picker.visible, 2000);
            compare(findChild(register, "selectedGender").text, "Female");
        }

        function test_resetButtonReachesTheModel() {
            mouseClick(find("forgetPasswordLink"));
            waitForStack(2);
            const reset = find("accountStack").currentItem;
            mouseClick(findChild(reset, "resetButton"));
            tryVerify(() => reset.viewModel.showingAlert, 2000);
            reset.viewModel.alertAccepted();
        }
    }
}
