// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/PrivateFiles.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
void setMode(const std::string &path, fs::perms mode)
{
    std::error_code error;
    fs::permissions(path, mode, fs::perm_options::replace, error);
    if (error)
        throw std::runtime_error("cannot restrict " + path + ": " + error.message());
}
} // namespace

void ensurePrivateDirectory(const std::string &path)
{
    std::error_code error;
    if (!fs::is_directory(path, error) && (!fs::create_directories(path, error) || error))
        throw std::runtime_error("cannot create directory " + path + ": " + error.message());
    setMode(path, fs::perms::owner_all);
}

void restrictExistingFile(const std::string &path)
{
    std::error_code error;
    if (fs::exists(path, error))
        setMode(path, fs::perms::owner_read | fs::perms::owner_write);
}

FileHandle openPrivateFile(const std::string &path)
{
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, S_IRUSR | S_IWUSR);
    // An existing file keeps its old mode on open(): restrict it explicitly.
    if (fd < 0 || ::fchmod(fd, S_IRUSR | S_IWUSR) != 0) {
        const std::string reason = std::strerror(errno);
        if (fd >= 0)
            ::close(fd);
        throw std::runtime_error("cannot create " + path + ": " + reason);
    }
    FileHandle file(::fdopen(fd, "w"));
    if (!file) {
        ::close(fd);
        throw std::runtime_error("cannot open " + path);
    }
    return file;
}
