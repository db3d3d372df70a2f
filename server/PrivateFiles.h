// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <memory>
#include <string>

// The data directory holds password hashes and the TLS key: only its owner may
// read it, also when it was made earlier with a wider mode. These throw
// std::runtime_error with the reason on failure.
void ensurePrivateDirectory(const std::string &path);
// Narrows an existing file to its owner; a missing file stays missing.
void restrictExistingFile(const std::string &path);

struct FileCloser {
    void operator()(std::FILE *file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

// Creates or truncates a file that only its owner may read or write.
FileHandle openPrivateFile(const std::string &path);
