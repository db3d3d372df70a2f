// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtQuick.Templates 2.15 as T

// A button drawn only by the content and background its user gives it, sized
// to them as the Controls' style sizes its buttons. The screens shown at start
// use it so that the Controls module and its style are not loaded before the
// first frame.
T.AbstractButton {
    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset, implicitContentHeight + topPadding + bottomPadding)
}
