// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/PollenLevel.h"

#include <algorithm>
#include <array>

namespace
{
using Scale = std::array<double, 4>; // where low, moderate, high and very high begin

constexpr Scale trees { 1, 15, 90, 1500 };
constexpr Scale grass { 1, 5, 20, 200 };
constexpr Scale weeds { 1, 10, 50, 500 };

constexpr const char *levels[] = { "None", "Low", "Moderate", "High", "Very high" };

int levelOn(const Scale &scale, double count)
{
    return static_cast<int>(std::count_if(scale.begin(), scale.end(), [count](double start) { return count >= start; }));
}
} // namespace

std::optional<std::string> pollenLevel(const PollenCounts &counts)
{
    const std::pair<const std::optional<double> &, const Scale &> types[] = {
        { counts.alder, trees }, { counts.birch, trees },   { counts.olive, trees },
        { counts.grass, grass }, { counts.mugwort, weeds }, { counts.ragweed, weeds },
    };
    std::optional<int> highest;
    for (const auto &[count, scale] : types)
        if (count)
            highest = std::max(highest.value_or(0), levelOn(scale, *count));
    if (!highest)
        return std::nullopt;
    return levels[*highest];
}
