// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Controls 2.15
import Tarnelo 1.0

// The air at a place a search found: its status, readings and weather, and
// whether the search went to the user's history.
Rectangle {
    id: card

    required property PlaceAirCardModel model

    implicitHeight: content.implicitHeight + 24
    radius: 20
    color: Theme.blue
    Accessible.role: Accessible.Pane
    Accessible.name: title.text

    Column {
        id: content
        x: 12
        y: 12
        width: parent.width - 24
        spacing: 8

        T.Label {
            id: title
            objectName: "placeAirTitle"
            width: parent.width
            elide: Text.ElideRight
            text: "Air at " + card.model.placeName
            font.pixelSize: Theme.headlineSize
            font.bold: true
            color: Theme.white
        }

        Row {
            visible: card.model.phase === PlaceAirCardModel.Loading
            spacing: 8
            BusyIndicator {
                width: 24
                height: 24
                running: parent.visible
            }
            T.Label {
                anchors.verticalCenter: parent.verticalCenter
                text: "Getting the air here…"
                font.pixelSize: Theme.captionSize + 2
                color: Theme.white
            }
        }

        T.Label {
            objectName: "placeAirFailure"
            visible: card.model.phase === PlaceAirCardModel.Failed
            width: parent.width
            wrapMode: Text.Wrap
            text: "The air here could not be fetched. Search again to retry."
            font.pixelSize: Theme.captionSize + 2
            color: Theme.white
        }

        Column {
            visible: card.model.phase === PlaceAirCardModel.Ready
            width: parent.width
            spacing: 8

            StatusBadge {
                width: parent.width
                valueSize: 30
                source: card.model
            }
            PollutantGrid {
                width: parent.width
                spacing: 6
                tileHeight: 48
                source: card.model
            }
            // One line, so that the card leaves the pin in view.
            T.Label {
                objectName: "placeAirWeather"
                width: parent.width
                wrapMode: Text.Wrap
                text: card.model.celsiusText + "  ·  Wind " + card.model.txt_wind + "km/h  ·  Humidity " + card.model.txt_humid
                      + "%  ·  UV " + card.model.txt_uv + "  ·  Pollen " + card.model.txt_pollen
                font.pixelSize: Theme.captionSize + 1
                color: Theme.white
            }
            T.Label {
                objectName: "placeAirSaved"
                visible: card.model.savesToHistory
                width: parent.width
                wrapMode: Text.Wrap
                text: "This search is saved to your account's history."
                font.pixelSize: Theme.captionSize
                color: Theme.white
                opacity: 0.85
            }
        }
    }
}
