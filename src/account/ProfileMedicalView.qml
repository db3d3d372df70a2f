// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The medical profile: what the backend holds comes in when the screen
// opens; "Save" sends the whole form back.
AccountPage {
    id: screen

    readonly property ProfileMedicalViewModel viewModel: ProfileMedicalViewModel {}
    // The smoking category's sheet is the screen's own business.
    property bool isCategoryPickerPresented: false

    model: viewModel
    heading: "Medical Information"
    title: "Medical Bio Data"
    showsBack: true
    Component.onCompleted: viewModel.profileMedD.fetch()

    ChoiceBox {
        label: "Condition"
        buttonName: "conditionButton"
        value: screen.viewModel.condition
        onTapped: screen.viewModel.isPickerPresented = true
    }

    CaptionedField {
        caption: "Name Condition"
        fieldName: "conditionNameField"
        placeholderText: "e.g. Asthma"
        text: screen.viewModel.conditionname
        onEdited: text => screen.viewModel.conditionname = text
    }

    CaptionedField {
        caption: "Emergency Contact Name"
        fieldName: "emergencyContactField"
        placeholderText: "Emergency Contact Name"
        text: screen.viewModel.emergencycontact
        onEdited: text => screen.viewModel.emergencycontact = text
    }

    ChoiceBox {
        label: "Relationship"
        buttonName: "relationshipButton"
        value: screen.viewModel.relationship
        onTapped: screen.viewModel.isPickerPresented1 = true
    }

    CaptionedField {
        caption: "Mobile Numer"
        fieldName: "mobileNumberField"
        placeholderText: "Mobile Number"
        inputMethodHints: Qt.ImhDialableCharactersOnly
        text: screen.viewModel.mobilenumber
        onEdited: text => screen.viewModel.mobilenumber = text
    }

    CaptionedField {
        caption: "Weight"
        fieldName: "weightField"
        placeholderText: "Weight"
        inputMethodHints: Qt.ImhFormattedNumbersOnly
        text: screen.viewModel.weight
        onEdited: text => screen.viewModel.weight = text
    }

    CaptionedField {
        caption: "Height (ft)"
        fieldName: "heightField"
        placeholderText: "Height"
        inputMethodHints: Qt.ImhFormattedNumbersOnly
        text: screen.viewModel.height
        onEdited: text => screen.viewModel.height = text
    }

    ChoiceBox {
        label: "Are you smoking?"
        buttonName: "smokingButton"
        value: screen.viewModel.smokingstatus
        onTapped: screen.viewModel.isPickerPresented2 = true
    }

    ChoiceBox {
        objectName: "categoryRow"
        visible: !screen.viewModel.isHidden
        label: "Smoker?"
        buttonName: "categoryButton"
        accessibleName: "Select Smoking category"
        value: screen.viewModel.selectedCategory
        onTapped: screen.isCategoryPickerPresented = true
    }

    Column {
        width: parent.width
        spacing: 6

        T.Label {
            id: moreDetailsCaption
            leftPadding: 4
            text: "Provide more details"
            font.pixelSize: 15
            color: Theme.secondaryLabel
        }

        TextArea {
            objectName: "moreDetailsField"
            Accessible.name: moreDetailsCaption.text
            width: parent.width
            height: Math.max(110, implicitHeight)
            padding: 14
            wrapMode: TextEdit.Wrap
            selectByMouse: true
            font.pixelSize: Theme.bodySize
            color: Theme.label
            text: screen.viewModel.moredetails
            onTextChanged: screen.viewModel.moredetails = text

            background: Rectangle {
                radius: 10
                color: Theme.surface
                border.color: parent.activeFocus ? Theme.blue : Theme.separator
            }
        }
    }

    PrimaryButton {
        objectName: "saveButton"
        visible: !screen.viewModel.isLoading
        text: "Save"
        onClicked: screen.viewModel.save()
    }

    UserConditionView {
        objectName: "conditionPicker"
        viewModel: screen.viewModel
    }

    UserRelationshipView {
        objectName: "relationshipPicker"
        viewModel: screen.viewModel
    }

    UserSmokingView {
        objectName: "smokingPicker"
        viewModel: screen.viewModel
    }

    OptionWheelSheet {
        objectName: "categoryPicker"
        title: "Select Smoking category"
        options: screen.viewModel.smokingCategories
        value: screen.viewModel.selectedCategory
        presented: screen.isCategoryPickerPresented
        onPicked: option => screen.viewModel.selectedCategory = option
        onDismissed: screen.isCategoryPickerPresented = false
    }
}
