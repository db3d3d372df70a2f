// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQml 2.15

// Content nobody sees until `wanted` first holds (a menu opened, a card
// turned): built then, and kept for the next time.
Loader {
    id: loader

    property bool wanted

    active: false

    Binding {
        target: loader
        property: "active"
        value: true
        when: loader.wanted
        restoreMode: Binding.RestoreNone
    }
}
