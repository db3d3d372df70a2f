// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// The personal bio: the stored details to change, sent to the backend and
// kept on the device once the user has read that it took them.
AccountPage {
    id: screen

    readonly property ProfileDetailsModel viewModel: ProfileDetailsModel {}

    model: viewModel
    heading: "Personal Bio"
    title: "Edit Information"
    showsBack: true

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
        label: "Date Of Birth"
    }

    ChoiceBox {
        label: "Gender"
        buttonName: "genderButton"
        value: screen.viewModel.selectedOption
        onTapped: screen.viewModel.isPickerPresented = true
    }

    PrimaryButton {
        objectName: "updateButton"
        text: "Update"
        onClicked: screen.viewModel.update()
    }

    PickerProfileBioView {
        viewModel: screen.viewModel
    }
}
