// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/MainIndoorsViewModel.h"

#include <array>

namespace
{
const QLatin1String airRooms("Open windows to air your rooms");

// Indexed by category, "1" first.
const std::array<QLatin1String, 6> advices {
    airRooms,
    airRooms,
    QLatin1String("Keep windows closed at busy hours; run a purifier if you have one"),
    QLatin1String("Keep windows closed and run a purifier; avoid frying, candles and incense indoors"),
    QLatin1String("Keep windows and doors shut, run a purifier on high and stay in the cleanest room"),
    QLatin1String("Seal windows and doors, run a purifier on high and wear a fitted mask if you must go out"),
};

const QLatin1String neutral("Air your rooms daily when the outdoor air is clean");
} // namespace

void MainIndoorsViewModel::setOutdoorIndex(const QString &index)
{
    if (index == m_outdoorIndex)
        return;
    m_outdoorIndex = index;
    Q_EMIT outdoorIndexChanged();
}

QString MainIndoorsViewModel::adviceFor(const QString &outdoorIndex)
{
    // Exact text, as the header classifies it: " 3" is no category.
    for (std::size_t i = 0; i < advices.size(); ++i) {
        if (outdoorIndex == QString::number(i + 1))
            return advices[i];
    }
    return neutral;
}
