// SPDX-License-Identifier: GPL-3.0-or-later
#include "UsedColours.h"

#include <array>

QImage withUsedColoursOnly(const QImage &indexed)
{
    constexpr int unused = -1;
    std::array<int, 256> newIndex;
    newIndex.fill(unused);
    QVector<QRgb> colours;
    QImage result = indexed;
    for (int y = 0; y < result.height(); ++y) {
        uchar *line = result.scanLine(y);
        for (int x = 0; x < result.width(); ++x) {
            int &index = newIndex[line[x]];
            if (index == unused) {
                index = colours.size();
                colours.append(indexed.color(line[x]));
            }
            line[x] = uchar(index);
        }
    }
    result.setColorTable(colours);
    return result;
}
