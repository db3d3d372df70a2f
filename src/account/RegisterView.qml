// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// Creating an account: who the user is, then the backend's answer in the alert.
AccountPage {
    id: screen

    readonly property RegisterViewModel viewModel: RegisterViewModel {}

    signal loginRequested()

    model: viewModel
    heading: "Hello! Register to get started"
    title: "Register Account"

    AccountField {
        objectName: "fullNameField"
        placeholderText: "Full Name"
        text: screen.viewModel.fullName
        onTextEdited: screen.viewModel.fullName = text
    }

    EmailField {
        placeholderText: "Email Address"
        text: screen.viewModel.emailAddress
        onTextEdited: screen.viewModel.emailAddress = text
    }

    BirthDateBox {
        model: screen.viewModel
    }

    ChoiceBox {
        label: "Gender"
        buttonName: "genderButton"
        valueName: "selectedGender"
        value: screen.viewModel.selectedOption
        onTapped: screen.viewModel.isPickerPresented = true
    }

    AccountField {
        objectName: "referralField"
        placeholderText: "Referral Code"
        text: screen.viewModel.referralcode
        onTextEdited: screen.viewModel.referralcode = text
    }

    PasswordField {
        placeholderText: "Password"
        onTextEdited: screen.viewModel.passwordtxt = password
        onAccepted: screen.viewModel.registerAccount()
    }

    PrimaryButton {
        objectName: "registerButton"
        text: "Register"
        onClicked: screen.viewModel.registerAccount()
    }

    PromptRow {
        prompt: "Already have an account?"
        linkText: "Login Now"
        linkName: "loginNowLink"
        onLinkTapped: screen.loginRequested()
    }

    PickerSingupView {
        objectName: "genderPicker"
        viewModel: screen.viewModel
    }
}
