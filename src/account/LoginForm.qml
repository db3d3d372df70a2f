// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// The login form; once the user has read the backend's welcome, the home shell.
AccountPage {
    id: form

    readonly property LoginViewModel viewModel: LoginViewModel {
        onSessionStarted: RootController.showHome()
    }

    signal registerRequested()
    signal resetRequested()

    model: viewModel
    heading: "Welcome Back!"
    title: "LOGIN"

    EmailField {
        placeholderText: "Enter Username; " + "name@example.com"
        text: form.viewModel.emailAddress
        onTextEdited: form.viewModel.emailAddress = text
    }

    PasswordField {
        placeholderText: "Enter Password"
        onTextEdited: form.viewModel.passwordtxt = password
        onAccepted: form.viewModel.login()
    }

    LinkButton {
        objectName: "forgetPasswordLink"
        x: parent.width - width
        text: "Forget Password?"
        onClicked: form.resetRequested()
    }

    PrimaryButton {
        objectName: "loginButton"
        text: "Login"
        onClicked: form.viewModel.login()
    }

    PromptRow {
        prompt: "Don't have an account?"
        linkText: "Register Now"
        linkName: "registerNowLink"
        onLinkTapped: form.registerRequested()
    }

    LinkButton {
        objectName: "homeLink"
        anchors.horizontalCenter: parent.horizontalCenter
        text: "Home"
        onClicked: RootController.showHome()
    }
}
