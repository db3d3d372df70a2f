// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// Asking the backend for a new password; once it agrees, a fresh login screen.
AccountPage {
    id: screen

    readonly property ResetPasswordViewModel viewModel: ResetPasswordViewModel {
        onLoginRequested: RootController.showLogin()
    }

    signal backRequested()

    model: viewModel
    heading: "Reset Password!"
    title: "Get New Password"

    T.Label {
        width: parent.width
        wrapMode: Text.Wrap
        text: "Enter the email address of your account to reset its password."
        font.pixelSize: 15
        color: Theme.secondaryLabel
    }

    EmailField {
        placeholderText: "Email Address"
        text: screen.viewModel.emailAddress
        onTextEdited: screen.viewModel.emailAddress = text
        onAccepted: screen.viewModel.resetPassword()
    }

    PrimaryButton {
        objectName: "resetButton"
        text: "Reset Password"
        onClicked: screen.viewModel.resetPassword()
    }

    LinkButton {
        objectName: "backToLoginLink"
        anchors.horizontalCenter: parent.horizontalCenter
        text: "Back to Login"
        onClicked: screen.backRequested()
    }
}
