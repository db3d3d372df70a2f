// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Readings.h"

Concentrations concentrationsOf(const Pollutants &p)
{
    return { p.co, p.no, p.no2, p.o3, p.so2, p.pm25, p.pm10, p.nh3 };
}
