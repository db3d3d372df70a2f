// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/OwnerOnlyFile.h"

#include "storage/StorageLog.h"

#include <QString>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool OwnerOnlyFile::ensure(const QString &path)
{
    // Same bytes as SQLite will use for the path, so both name the same file.
    const QByteArray name = path.toUtf8();
    // Read-only is enough: creating and changing the mode need no write access,
    // and SQLite decides for itself whether it can write.
    const int fd = ::open(name.constData(), O_RDONLY | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (fd < 0) {
        const int error = errno; // the logging machinery may overwrite it
        qCWarning(lcStorage, "Cannot create %s: %s", name.constData(), std::strerror(error));
        return false;
    }
    // The mode given to open() is masked by the umask and ignored for an existing file.
    if (::fchmod(fd, S_IRUSR | S_IWUSR) != 0) {
        const int error = errno;
        qCWarning(lcStorage, "Cannot restrict %s to its owner: %s", name.constData(), std::strerror(error));
    }
    ::close(fd);
    return true;
}
