// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

// What the dashboard shows for the backend's air-quality category, the text
// "1" (cleanest) to "6": a status name, its colour and the index value it
// stands for.
struct AqiStatus {
    QString txt_status = QStringLiteral("AQI Status");
    QColor statusColor = Qt::white;
    QString aqiValue = QStringLiteral("0");

    bool operator==(const AqiStatus &other) const { return txt_status == other.txt_status && statusColor == other.statusColor && aqiValue == other.aqiValue; }
    bool operator!=(const AqiStatus &other) const { return !(*this == other); }
};

namespace AqiClassification
{
// Updates `shown` for the category text, compared exactly as text: " 1" or
// "7" is no category and leaves everything as it was.
void classify(const QString &category, AqiStatus &shown);

// The category a text names, 1 to 6, compared as classify() compares it;
// 0 for any other text.
int categoryNumber(const QString &category);

// The six status names, cleanest first: category n is statusNames()[n - 1].
QStringList statusNames();

// Black or white, whichever reads better on the background.
QColor readableTextOn(const QColor &background);
} // namespace AqiClassification
