// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

PendingScreen {
    title: "ScaleView"
}
