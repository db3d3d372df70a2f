// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

// Controls buttons take only Space; people who move through the app with Tab
// expect Enter or Return to press the focused button too. Installed on the
// application, it turns those keys into Space for a focused button.
class ReturnPressesButtons : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
