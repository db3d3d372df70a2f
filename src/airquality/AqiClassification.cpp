// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/AqiClassification.h"

#include <array>
#include <cmath>

namespace
{
// The platform's system colours, the same values Theme.qml names.
constexpr QRgb green = 0x34C759;
constexpr QRgb yellow = 0xFFCC00;
constexpr QRgb orange = 0xFF9500;
constexpr QRgb red = 0xFF3B30;
constexpr QRgb purple = 0xAF52DE;

struct Category {
    QLatin1String text;
    QLatin1String status;
    QRgb color;
    // The top of the category's range on the index scale.
    QLatin1String value;
};

// The two worst categories share the system purple; only the scale screen
// tells them apart by colour.
const std::array<Category, 6> categories { {
    { QLatin1String("1"), QLatin1String("Good"), green, QLatin1String("50") },
    { QLatin1String("2"), QLatin1String("Moderate"), yellow, QLatin1String("100") },
    { QLatin1String("3"), QLatin1String("Unhealthy for sensitive groups"), orange, QLatin1String("200") },
    { QLatin1String("4"), QLatin1String("Unhealthy"), red, QLatin1String("300") },
    { QLatin1String("5"), QLatin1String("Very unhealthy"), purple, QLatin1String("400") },
    { QLatin1String("6"), QLatin1String("Hazardous"), purple, QLatin1String("500") },
} };

const Category *find(const QString &text)
{
    for (const Category &category : categories) {
        if (text == category.text)
            return &category;
    }
    return nullptr;
}
} // namespace

void AqiClassification::classify(const QString &category, AqiStatus &shown)
{
    // The status with its colour and the value are two lookups in turn, as
    // the dashboard has always decided them; a text that matches neither
    // keeps what was shown before.
    if (const Category *match = find(category)) {
        shown.txt_status = match->status;
        shown.statusColor = QColor(match->color);
    }
    if (const Category *match = find(category))
        shown.aqiValue = match->value;
}

int AqiClassification::categoryNumber(const QString &category)
{
    const Category *found = find(category);
    return found ? static_cast<int>(found - categories.data()) + 1 : 0;
}

QStringList AqiClassification::statusNames()
{
    QStringList names;
    for (const Category &category : categories)
        names.append(category.status);
    return names;
}

QColor AqiClassification::readableTextOn(const QColor &background)
{
    // Relative luminance, linearised as sRGB defines it. Black and white
    // contrast equally at sqrt(1.05 * 0.05) - 0.05, about 0.18; above it
    // black reads better, as it does on every status colour but the darkest.
    const auto linear = [](double channel) { return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4); };
    const double luminance = 0.2126 * linear(background.redF()) + 0.7152 * linear(background.greenF()) + 0.0722 * linear(background.blueF());
    return (luminance + 0.05) * (luminance + 0.05) > 1.05 * 0.05 ? QColor(Qt::black) : QColor(Qt::white);
}
