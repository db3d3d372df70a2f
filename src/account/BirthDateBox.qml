// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// The birth date of a personal details form on its three wheels, under a caption.
Column {
    id: box

    property PersonalDetailsModel model
    property alias label: labelText.text

    width: parent ? parent.width : 0
    spacing: 6

    T.Label {
        id: labelText
        leftPadding: 4
        text: "Date of Birth"
        font.pixelSize: 15
        color: Theme.secondaryLabel
    }

    Rectangle {
        width: parent.width
        height: birthDate.height
        radius: 10
        color: Theme.surface
        border.color: Theme.separator

        DateOfBirthPicker {
            id: birthDate
            objectName: "dateOfBirth"
            x: 8
            width: parent.width - 16
            day: box.model.birthDay
            month: box.model.birthMonth
            year: box.model.birthYear
            onPicked: (year, month, day) => box.model.setDateOfBirth(year, month, day)
        }
    }
}
