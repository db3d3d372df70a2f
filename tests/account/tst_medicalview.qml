// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import QtTest 1.15

// The medical profile as the profile overview opens it: pushed onto a stack,
// filled from what the backend holds, and its sheets. The way back is pressed
// by the AT-SPI walk.
Item {
    id: window
    width: 390
    height: 844

    StackView {
        id: stack
        anchors.fill: parent
        initialItem: Item {}
    }

    TestCase {
        name: "ProfileMedicalView"
        when: windowShown

        property var screen

        function find(name) {
            return findChild(screen, name);
        }

        function init() {
            warnings.restart();
            screen = stack.push("qrc:/qml/ProfileMedicalView.qml");
            verify(screen, "the screen builds");
            tryVerify(() => !stack.busy, 2000);
        }

        function cleanup() {
            stack.pop(null, StackView.Immediate);
            wait(0);
            compare(warnings.count(), 0, "nothing printed a warning");
        }

        function test_nonSmokerHidesTheCategory() {
            tryCompare(screen.viewModel, "smokingstatus", "Smoker", 5000);
            verify(find("categoryRow").visible, "a smoker is asked how much");
            mouseClick(find("smokingButton"));
            const picker = find("smokingPicker");
            tryVerify(() => picker.opened && picker.y + picker.height === window.height, 2000, "the sheet sits on the bottom edge");
            const wheel = findChild(picker.contentItem, "optionWheel");
            compare(wheel.currentIndex, screen.viewModel.optionsq.indexOf("Smoker"), "the wheel shows the current answer");

            // The row above the middle one.
            mouseClick(wheel, wheel.width / 2, wheel.height / 6);
            compare(screen.viewModel.smokingstatus, "Non-Smoker");
            verify(!find("categoryRow").visible);
            mouseClick(findChild(picker.contentItem, "closePicker"));
            verify(!screen.viewModel.isPickerPresented2);
            tryVerify(() => !picker.visible, 2000);
        }

        // The model's refusal and the alert are tested on the model; here the bindings and the tap.
        function test_storedDetailsFillTheFormAndEditsReachTheModel() {
            tryCompare(find("conditionNameField"), "text", "Asthma", 5000);
            compare(find("moreDetailsField").text, "Inhaler at night");
            const weight = find("weightField");
            weight.forceActiveFocus();
            weight.selectAll();
            keyClick(Qt.Key_Delete);
            compare(screen.viewModel.weight, "");
            const scroller = find("scroller");
            scroller.contentY = scroller.contentHeight - scroller.height;
            mouseClick(find("saveButton"));
            tryVerify(() => screen.viewModel.showingAlert, 2000);
            screen.viewModel.alertAccepted();
        }
    }
}
