// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import Tarnelo 1.0

// What to do when the air is bad: every tip with its full recommendation.
Column {
    spacing: 12

    T.Label {
        text: "Health Recommendations"
        font.pixelSize: Theme.headlineSize + 3
        font.bold: true
        color: Theme.label
    }

    Repeater {
        model: HealthTipsModel {}

        RecommendationCard {
            objectName: "recommendation_" + index
            width: parent.width
            image: model.image
            title: model.recommendationTitle
            text: model.longText
        }
    }
}
