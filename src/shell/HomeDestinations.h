// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace HomeDestinations
{
// The screen the home content area shows for a destination key. Guests see the
// login screen everywhere but on the dashboard; unknown keys (the footer's
// "FAQ", "Contact Us", "Privacy Policy") show nothing, which is an empty name.
QString viewFor(const QString &key, bool guest);

// Every screen the content area can show, for loading them all in a self-test.
QStringList allViews();
} // namespace HomeDestinations
