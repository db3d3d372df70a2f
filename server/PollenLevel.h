// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

// Counts in grains/m³ of the pollen types the upstream reports.
struct PollenCounts {
    std::optional<double> alder, birch, olive; // trees
    std::optional<double> grass;
    std::optional<double> mugwort, ragweed; // weeds
};

// "None", "Low", "Moderate", "High" or "Very high": the highest level any type
// reaches on the count scale of the American Academy of Allergy, Asthma &
// Immunology's National Allergy Bureau, which rates each kind of pollen on its
// own scale (trees: low from 1, moderate from 15, high from 90, very high from
// 1500 grains/m³; grass: 1, 5, 20, 200; weeds: 1, 10, 50, 500). Nothing when
// no type has a count.
std::optional<std::string> pollenLevel(const PollenCounts &counts);
