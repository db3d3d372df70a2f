// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import Tarnelo 1.0

// The profile as a signed-in user goes through it on a phone-sized window,
// against the development backend: the overview, the bio changed and seen
// again, and the way out. What the models make of answers is tested on them.
Item {
    id: window
    width: 390
    height: 844

    property var view

    LoginViewModel {
        id: login
    }

    SignalSpy {
        id: rootReplaced
        target: RootController
        signalName: "rootReplaced"
    }

    TestCase {
        name: "ProfileView"
        when: windowShown

        function find(name) {
            return findChild(window.view, name);
        }

        function waitForStack(depth) {
            const stack = find("profileStack");
            tryVerify(() => stack.depth === depth && !stack.busy, 3000);
        }

        // Signs in against the backend; the session starts on the alert's "OK".
        function initTestCase() {
            login.emailAddress = demoEmail;
            login.passwordtxt = demoPassword;
            login.login();
            tryVerify(() => login.showingAlert, 5000);
            compare(login.responseCode !== "" && login.responseCode !== "0", true, login.alertMessage);
            login.alertAccepted();
        }

        function test_journey() {
            warnings.restart();
            window.view = Qt.createComponent("qrc:/qml/ProfileView.qml").createObject(window, { width: 390, height: 844 });
            verify(window.view, "the profile builds");
            const signedIn = login.date_fullname;

            compare(find("fullName").text, signedIn);
            // Every new account starts on the free package.
            tryCompare(find("categoryLine"), "text", "Category: Freemium", 5000);

            // The bio, changed on the backend and on the device.
            mouseClick(find("bioLink"));
            waitForStack(2);
            const bio = find("profileStack").currentItem;
            compare(findChild(bio, "fullNameField").text, signedIn);
            compare(findChild(bio, "yearWheel").currentIndex, Number(login.date_dateofbirth.substring(0, 4)) - 1900);
            verify(!findChild(bio, "yearWheel").moving, "the wheels open on the stored day");

            mouseClick(findChild(bio, "genderButton"));
            const sheet = findChild(bio, "genderPicker");
            tryVerify(() => sheet.position === 1, 2000);
            mouseClick(findChild(sheet.contentItem, "option_Others"));
            tryVerify(() => !sheet.visible, 2000);

            const nameField = findChild(bio, "fullNameField");
            mouseClick(nameField);
            nameField.selectAll();
            keyClick(Qt.Key_Delete);
            for (const character of "Dana Otieno")
                keyClick(character);
            mouseClick(findChild(bio, "updateButton"));
            tryVerify(() => bio.viewModel.showingAlert && !bio.viewModel.isLoading, 5000);
            verify(bio.viewModel.responseCode !== "0", bio.viewModel.alertMessage);
            // The alert's buttons live on the window's overlay.
            mouseClick(findChild(findChild(bio, "alert").contentItem, "alertOk"));
            mouseClick(findChild(bio, "backButton"));
            waitForStack(1);
            compare(find("fullName").text, "Dana Otieno");
            compare(find("genderLine").text, "Gender : Others");
            compare(find("birthDateLine").text, "Date Of Birth: " + login.date_dateofbirth, "the wheels kept the stored day");

            // Logout, at the foot of the page, asks first, then hands the window to a fresh login.
            const scroller = findChild(find("profileStack").currentItem, "scroller");
            scroller.contentY = scroller.contentHeight - scroller.height;
            mouseClick(find("logoutButton"));
            const confirmation = find("logoutAlert");
            tryVerify(() => confirmation.opened, 2000);
            mouseClick(findChild(confirmation.contentItem, "alertOk"));
            compare(rootReplaced.count, 1);
            compare(RootController.rootView, "LoginView");
            compare(window.view.viewModel.useriddata, "");

            window.view.destroy();
            wait(0);
            compare(warnings.count(), 0, "nothing printed a warning");
        }
    }
}
