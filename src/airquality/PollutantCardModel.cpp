// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/PollutantCardModel.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace
{
// The concentration at the scale's far end.
constexpr double scaleMaximum = 600;
} // namespace

PollutantCardModel::PollutantCardModel(QObject *parent)
    : QObject(parent)
{
}

void PollutantCardModel::setReading(const QString &reading)
{
    if (reading == m_reading)
        return;
    m_reading = reading;
    bool ok = false;
    const double concentration = QLocale::c().toDouble(reading, &ok);
    // "nan" and "inf" read as numbers but place no marker.
    m_concentration = ok && std::isfinite(concentration) ? concentration : 0;
    Q_EMIT readingChanged();
}

double PollutantCardModel::markerX() const
{
    return std::clamp(m_concentration / scaleMaximum * scaleWidth(), 0.0, scaleWidth());
}
