// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Exposure;

// Concentrations in µg/m³, as air-quality services report them.
struct Pollutants {
    double co = 0, no = 0, no2 = 0, o3 = 0, so2 = 0, pm25 = 0, pm10 = 0, nh3 = 0;
};

// The same concentrations at the precision the answers carry (two decimals),
// so that a category computed here is the one a client computes from the text.
Pollutants roundedToHundredths(const Pollutants &p);

// The same concentrations over every averaging period the EPA reads: what a
// reading without a past, like the simulation's, stands for.
Exposure steadyExposure(const Pollutants &p);

// The US EPA category, 1 Good ... 6 Hazardous, of steady concentrations.
int usEpaCategory(const Pollutants &p);

// OpenWeatherMap's own index, 1 Good ... 5 Very poor, from its published bands.
int openWeatherIndex(const Pollutants &p);
