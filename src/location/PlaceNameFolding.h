// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The form in which place names are compared: without accents, case or
// punctuation, with single spaces between words. The gazetteer stores every
// name folded this way and searches fold the query the same way, so
// "NAÏROBI" finds Nairobi and "Sao Paulo" finds São Paulo.
QString foldPlaceName(const QString &name);
