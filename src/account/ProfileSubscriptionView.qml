// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The user's plan: a package, its benefits and price, a way to pay and "Subscribe".
AccountPage {
    id: screen

    readonly property ProfileSubscriptionViewModel viewModel: ProfileSubscriptionViewModel {}

    model: viewModel
    showsBack: true
    heading: "My Subscriptions"

    ChoiceBox {
        label: "Subscription"
        value: screen.viewModel.selectedOption
        buttonName: "packageButton"
        accessibleName: "Select Package category"
        onTapped: screen.viewModel.isPickerPresented = true
    }

    Column {
        width: parent.width

        Repeater {
            model: screen.viewModel.options

            SubscriptionRadioButton {
                required property string modelData
                objectName: "package_" + modelData
                title: modelData
                isSelected: screen.viewModel.selectedCategory === modelData
                action: Action { onTriggered: screen.viewModel.choosePackage(modelData) }
            }
        }
    }

    AbstractButton {
        objectName: "benefitsHeading"
        width: parent.width
        height: 32
        Accessible.name: "Plan Benefits"
        onClicked: screen.viewModel.isHidden = !screen.viewModel.isHidden

        contentItem: Row {
            spacing: 8

            T.Label {
                anchors.verticalCenter: parent.verticalCenter
                text: "Plan Benefits"
                font.pixelSize: Theme.headlineSize
                font.weight: Font.DemiBold
                color: Theme.label
            }
            T.Label {
                anchors.verticalCenter: parent.verticalCenter
                text: "Packages"
                font.pixelSize: 15
                color: Theme.secondaryLabel
            }
            SymbolIcon {
                anchors.verticalCenter: parent.verticalCenter
                name: screen.viewModel.isHidden ? "chevron.down" : "chevron.up"
                color: Theme.gray
                size: 20
            }
        }
    }

    Rectangle {
        visible: !screen.viewModel.isHidden
        width: parent.width
        height: benefits.implicitHeight
        radius: 10
        color: Theme.surface
        border.color: Theme.separator

        T.Label {
            id: benefits
            objectName: "benefits"
            width: parent.width
            padding: 16
            lineHeight: 1.3
            wrapMode: Text.Wrap
            text: "1. Bulk subscriptions\n2. Employer sponsorship\n3. Corporate billing\n4. Monetizing data analysis"
            font.pixelSize: Theme.bodySize
            color: Theme.label
        }
    }

    LabelledBox {
        label: "Amount: (kshs)"

        T.Label {
            objectName: "amount"
            anchors.right: parent.right
            anchors.rightMargin: 4
            anchors.verticalCenter: parent.verticalCenter
            text: "0000"
            font.pixelSize: Theme.bodySize
            color: Theme.label
        }
    }

    Rectangle {
        width: parent.width
        height: channels.height
        radius: 10
        color: Theme.surface
        border.color: Theme.separator

        Column {
            id: channels
            width: parent.width

            Repeater {
                model: screen.viewModel.paymentOptions

                RadioButtonView {
                    required property var modelData
                    objectName: "channel_" + modelData.optionId
                    option: modelData.option
                    imageName: modelData.imageName
                    optionId: modelData.optionId
                    isSelected: screen.viewModel.selectedPaymentOption
                    onPicked: chosen => screen.viewModel.selectedPaymentOption = chosen
                }
            }
        }
    }

    PrimaryButton {
        objectName: "subscribeButton"
        text: "Subscribe"
        onClicked: screen.viewModel.subscribe()
    }

    PickerSubscriptionView {
        objectName: "packagePicker"
        viewModel: screen.viewModel
    }
}
