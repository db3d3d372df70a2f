// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace DocumentsDirectory
{
// The per-user directory where the app keeps its files, created if missing.
// Empty when the system names no such directory or it cannot be created.
QString path();
} // namespace DocumentsDirectory
