// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

// The scale screen's health advisories, one per category (1 Good ... 6
// Hazardous), for the screen itself and for the air alerts that quote them.
class ScaleAdvisories : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    // Empty outside 1 to 6.
    Q_INVOKABLE static QString advisory(int category);
};
