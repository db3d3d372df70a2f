// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import Tarnelo 1.0

// Everything the account keeps about the user at a glance, a card each, with
// the ways into the screens that change it.
AccountPage {
    id: overview

    property ProfileViewModel viewModel

    signal bioRequested()
    signal medicalRequested()
    signal subscriptionRequested()

    model: viewModel
    heading: "My Account"
    title: "PROFILE"

    CardView {
        objectName: "profileCard"
        title: "My Profile Information"

        CardText {
            objectName: "fullName"
            text: overview.viewModel.fullname_val
            font.pixelSize: Theme.bodySize
            font.weight: Font.DemiBold
            color: Theme.label
        }
        CardText {
            objectName: "emailLine"
            text: "Email : " + overview.viewModel.emailaddress_val
        }
        CardText {
            objectName: "genderLine"
            text: overview.viewModel.genderLine
        }
        CardText {
            objectName: "birthDateLine"
            text: "Date Of Birth: " + overview.viewModel.dateofbirth_val
        }
        LinkButton {
            objectName: "bioLink"
            leftPadding: 0
            text: "Edit Personal Bio ›"
            onClicked: overview.bioRequested()
        }
    }

    CardView {
        objectName: "subscriptionCard"
        title: "Subscription"

        CardText {
            objectName: "statusLine"
            text: "Subscription Status: " + overview.viewModel.s_status
        }
        CardText {
            objectName: "typeLine"
            text: "Type: " + overview.viewModel.s_type
        }
        CardText {
            objectName: "categoryLine"
            text: "Category: " + overview.viewModel.s_category
        }
        LinkButton {
            objectName: "subscriptionLink"
            leftPadding: 0
            text: "View Subscription Packages ›"
            onClicked: overview.subscriptionRequested()
        }
    }

    CardView {
        objectName: "medicalCard"
        title: "Medical Condition"

        CardText {
            objectName: "conditionStatusLine"
            text: "Have a condition: " + overview.viewModel.conditionstatus
        }
        CardText {
            objectName: "conditionLine"
            text: "Condition: " + overview.viewModel.conditionname
        }
        LinkButton {
            objectName: "medicalLink"
            leftPadding: 0
            text: "Edit Medical Profile ›"
            onClicked: overview.medicalRequested()
        }
    }

    CardView {
        objectName: "feedbackCard"
        title: "Share Feedback"

        FeedbackBox {
            objectName: "feedbackBox"
            text: overview.viewModel.feedbacks
            onTextChanged: overview.viewModel.feedbacks = text
        }
        PrimaryButton {
            objectName: "sendFeedbackButton"
            text: "Send Feedback"
            onClicked: overview.viewModel.sendFeedback()
        }
    }

    PrimaryButton {
        objectName: "logoutButton"
        text: "Logout"
        onClicked: overview.viewModel.logout()
    }

    NotificationAlert {
        objectName: "logoutAlert"
        message: "Tap OK to log out of your account on this device."
        visible: overview.viewModel.showingAlert1
        onOkTapped: overview.viewModel.confirmLogout()
    }
}
