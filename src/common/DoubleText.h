// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

// A double as the shortest decimal text that reads back as the same value,
// always with a fractional part or an exponent ("28.0", "-1.2864", "1e-05",
// "1e+16"), the way the console lines and displays of the app write numbers.
QString doubleText(double value);
