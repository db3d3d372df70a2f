// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The profile destination: the overview, and over it whichever screen it
// opened. Coming back to the overview shows what that screen changed.
Rectangle {
    id: profile

    readonly property ProfileViewModel viewModel: ProfileViewModel {}

    objectName: "ProfileView"
    color: Theme.background

    StackView {
        id: stack
        objectName: "profileStack"
        anchors.fill: parent

        initialItem: ProfileOverview {
            viewModel: profile.viewModel
            // Once when the profile opens, and again on each return from a
            // screen it opened, which may have changed what it shows.
            StackView.onActivated: profile.viewModel.refresh()
            onBioRequested: stack.push("ProfileDetails.qml")
            onMedicalRequested: stack.push("ProfileMedicalView.qml")
            onSubscriptionRequested: stack.push("ProfileSubscriptionView.qml")
        }
    }

    Connections {
        target: profile.viewModel
        function onLoggedOut() {
            RootController.showLogin();
        }
    }
}
