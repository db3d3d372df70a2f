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
    QDir dir(location);
    if (dir.exists())
        return location;
    if (!dir.mkpath(QStringLiteral("."))) {
        qCWarning(lcStorage, "Cannot create the data directory %s", qUtf8Printable(location));
        return {};
    }
    // The XDG base directory rules ask for 0700 on directories the app creates;
    // the session row inside is personal data.
    QFile::setPermissions(location, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return location;
}
