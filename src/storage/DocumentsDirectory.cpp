// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/DocumentsDirectory.h"

#include "storage/StorageLog.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

QString DocumentsDirectory::path()
{
    const QString location = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (location.isEmpty()) {
        qCWarning(lcStorage, "No per-user data directory is known (is HOME set?)");
        return {};
    }
    if (!QDir(location).exists() && !QDir().mkpath(location)) {
        qCWarning(lcStorage, "Cannot create the data directory %s", qUtf8Printable(location));
        return {};
    }
    // The XDG base directory rules ask for 0700, and the session row inside is
    // personal data: a directory left wider by an older run or another tool is
    // tightened too, not only one made here.
    if (!QFile::setPermissions(location, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
        qCWarning(lcStorage, "Cannot restrict the data directory %s to its owner", qUtf8Printable(location));
    return location;
}
