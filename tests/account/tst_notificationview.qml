// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15

// What the notifications screen shows for each kind of answer, for the
// signed-in user 12.
Item {
    id: window
    width: 390
    height: 700

    property var view

    TestCase {
        name: "NotificationView"
        when: windowShown

        function find(name) {
            return findChild(window.view, name);
        }

        // Opens the screen on the scripted answer; it asks as it appears.
        function open(body) {
            warnings.restart();
            backend.answer(body);
            backend.takeTargets();
            window.view = Qt.createComponent("qrc:/qml/NotificationView.qml").createObject(window, { width: 390, height: 700 });
            verify(window.view, "the notifications screen builds");
            verify(find("progress").visible, "progress shows while the answer is on its way");
            tryVerify(() => !window.view.viewModel.isLoading, 5000);
            verify(!find("progress").visible);
            compare(backend.takeTargets(), ["/tarnelo/v1/notification.php?userid=12"]);
        }

        function cleanup() {
            window.view.destroy();
            wait(0);
            compare(warnings.count(), 0, "nothing printed a warning");
        }

        function test_listsNotificationsWithTheUnreadMarked() {
            open(JSON.stringify([
                // Long enough to wrap.
                { id: "7", userid: "12", topic: "Welcome to Tarnelo", readmessage: "0", posteddate: "2026-01-05 09:12:40",
                  message: "Your account is ready. Check the air around you, and keep your medical profile up to date so that the advice fits you." },
                { id: "3", userid: "12", topic: "Dust warning", readmessage: "1", posteddate: "2026-01-02 17:40:03", message: "PM10 is high." }
            ]));
            const list = find("notificationList");
            tryCompare(list, "count", 2);
            const first = list.itemAtIndex(0);
            const second = list.itemAtIndex(1);
            compare(first.posteddate, "2026-01-05 09:12:40");
            verify(findChild(first, "unreadDot").visible, "an unread notification is marked");
            compare(second.message, "PM10 is high.");
            verify(!findChild(second, "unreadDot").visible);
            verify(!find("emptyState").visible && !find("fetchError").visible);
        }

        function test_aFailedFetchShowsWhy() {
            open("[{\"topic\": 1}]");
            const error = find("fetchError");
            verify(error.visible);
            verify(error.text.startsWith("Failed to decode data: "), error.text);
            verify(!find("emptyState").visible, "a failure is not an empty list");
        }

        // Alerts sit above the list, empty here: off at first, which asks for
        // nothing more; on, the level starts from the medical profile.
        function test_airAlertsAboveTheList() {
            open("[]");
            verify(find("emptyState").visible, "no notifications says so");
            const level = find("alertLevel");
            verify(!level.enabled, "no level to pick while alerts are off");
            find("airAlertsSwitch").toggle();
            find("airAlertsSwitch").toggled();
            tryVerify(() => level.enabled, 5000);
            compare(level.currentText, "Unhealthy");
            compare(find("alertReason").text, "Set for everyone: your medical profile is not filled in");
            compare(backend.takeTargets().length, 1, "the medical profile, once");
            find("airAlertsSwitch").toggle();
            find("airAlertsSwitch").toggled();
        }
    }
}
