// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The one definition of a plausible e-mail address that every screen asking
// for one checks against, so that they never disagree.
namespace EmailPattern
{
const QString &pattern();
// Whether the address, without its surrounding blanks, matches the pattern as a whole.
bool accepts(const QString &address);
} // namespace EmailPattern
