// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The row over the map: the place to look for and the button that looks.
Row {
    id: bar

    property SearchLocationViewModel viewModel

    spacing: 8

    TextField {
        objectName: "searchField"
        width: bar.width - searchButton.width - bar.spacing
        height: searchButton.height
        placeholderText: "Search location"
        Accessible.name: placeholderText
        Accessible.searchEdit: true
        font.pixelSize: Theme.bodySize
        text: bar.viewModel.searchQuery
        onTextEdited: bar.viewModel.searchQuery = text
        focus: bar.viewModel.isSearchFieldFocused
        onActiveFocusChanged: bar.viewModel.isSearchFieldFocused = activeFocus
        onAccepted: bar.viewModel.search()

        background: Rectangle {
            radius: 5
            color: Theme.white
            border.color: Theme.separator
        }
    }

    FilledButton {
        id: searchButton
        objectName: "searchButton"
        text: "Search"
        onClicked: bar.viewModel.search()
    }
}
