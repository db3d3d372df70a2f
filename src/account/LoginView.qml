// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// Logging in, registering and resetting the password as one stack of screens
// inside whatever shows it: the whole window after a logout, or the home
// shell's content area when a guest opens a signed-in destination.
Rectangle {
    objectName: "LoginView"
    color: Theme.background

    StackView {
        id: stack
        objectName: "accountStack"
        anchors.fill: parent

        initialItem: LoginForm {
            onRegisterRequested: stack.push(registerScreen)
            onResetRequested: stack.push(resetScreen)
        }
    }

    Component {
        id: registerScreen
        RegisterView {
            onLoginRequested: stack.pop()
        }
    }

    Component {
        id: resetScreen
        ResetPasswordView {
            onBackRequested: stack.pop()
        }
    }
}
