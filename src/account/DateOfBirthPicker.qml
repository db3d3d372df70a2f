// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15

// Day, month and year on three wheels, as a phone's date picker has them.
// Every wheel offers 31 days; the model turns a day the month lacks into its
// last one, and the wheel follows.
Row {
    id: picker

    property int day: 1
    property int month: 1
    property int year: firstYear
    readonly property int firstYear: 1900
    readonly property int lastYear: new Date().getFullYear()

    signal picked(int year, int month, int day)

    function pickShown() {
        picker.picked(picker.firstYear + yearWheel.currentIndex, monthWheel.currentIndex + 1, dayWheel.currentIndex + 1);
    }

    height: 110

    DateWheel {
        id: dayWheel
        objectName: "dayWheel"
        width: picker.width * 0.25
        height: picker.height
        model: 31
        onSettled: picker.pickShown()
        currentIndex: picker.day - 1
    }

    DateWheel {
        id: monthWheel
        objectName: "monthWheel"
        width: picker.width * 0.4
        height: picker.height
        model: 12
        onSettled: picker.pickShown()
        currentIndex: picker.month - 1
        label: index => Qt.locale("en_GB").standaloneMonthName(index, Locale.LongFormat)
    }

    DateWheel {
        id: yearWheel
        objectName: "yearWheel"
        width: picker.width * 0.35
        height: picker.height
        model: picker.lastYear - picker.firstYear + 1
        onSettled: picker.pickShown()
        currentIndex: picker.year - picker.firstYear
        // Years have a first and a last; only days and months come round again.
        wrap: false
        label: index => String(picker.firstYear + index)
    }
}
