// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

namespace OwnerOnlyFile
{
// Makes sure a file exists at path and is readable and writable by its owner only
// (0600, whatever the umask), creating it empty if missing. An existing file keeps
// its contents. Returns false only when the file could not be created or opened;
// a file whose mode cannot be changed (someone else's) is still usable.
bool ensure(const QString &path);
} // namespace OwnerOnlyFile
