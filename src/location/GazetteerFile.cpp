// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/GazetteerFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

QString gazetteerFilePath()
{
    const QString chosen = qEnvironmentVariable("TARNELO_GAZETTEER");
    if (!chosen.isEmpty())
        return chosen;
    const QDir executableDir(QCoreApplication::applicationDirPath());
    const QString besideExecutable = executableDir.filePath(QStringLiteral("gazetteer.sqlite"));
    if (QFileInfo::exists(besideExecutable))
        return besideExecutable;
    return QDir::cleanPath(executableDir.filePath(QStringLiteral("../share/tarnelo/gazetteer.sqlite")));
}
