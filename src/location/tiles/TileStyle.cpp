// SPDX-License-Identifier: GPL-3.0-or-later
#include "TileStyle.h"

#include <array>

namespace
{
// Blends between two colours, ends excluded: 5 base colours make 10 pairs of 20.
constexpr int blendSteps = 21;

QRgb blend(QRgb from, QRgb to, double amount)
{
    const auto mix = [amount](int a, int b) { return qRound(a + (b - a) * amount); };
    return qRgb(mix(qRed(from), qRed(to)), mix(qGreen(from), qGreen(to)), mix(qBlue(from), qBlue(to)));
}
} // namespace

QVector<QRgb> TileStyle::palette()
{
    const std::array<QRgb, 5> base { water, land, border, labelText, labelHalo };
    QVector<QRgb> colours(base.begin(), base.end());
    for (std::size_t from = 0; from < base.size(); ++from) {
        for (std::size_t to = from + 1; to < base.size(); ++to) {
            for (int step = 1; step < blendSteps; ++step)
                colours.append(blend(base[from], base[to], double(step) / blendSteps));
        }
    }
    return colours;
}

QFont TileStyle::labelFont(bool capital)
{
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(capital ? 12 : 11);
    font.setWeight(capital ? QFont::DemiBold : QFont::Normal);
    return font;
}
