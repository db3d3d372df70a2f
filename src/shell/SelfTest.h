// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QQmlEngine;

namespace SelfTest
{
// Builds every screen once, as the app would, and reports any QML error or
// warning on the way. Returns the process exit code: 0 when all were clean.
int run(QQmlEngine &engine);
} // namespace SelfTest
