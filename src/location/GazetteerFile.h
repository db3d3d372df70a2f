// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Where the offline gazetteer is, first match wins:
//  1. the file TARNELO_GAZETTEER names, whether or not it exists (tests and
//     packagers point at their own file this way);
//  2. gazetteer.sqlite beside the executable, as in the build tree;
//  3. ../share/tarnelo/gazetteer.sqlite from the executable, as installed.
// When none exists, the installed location, so that the error names it.
QString gazetteerFilePath();
