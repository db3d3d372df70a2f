// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTemporaryFile>

// Redirects the process's standard output into a temporary file for as long as
// it lives, so a test can check the exact console lines the code printed.
class StdoutCapture
{
public:
    StdoutCapture();
    ~StdoutCapture();
    StdoutCapture(const StdoutCapture &) = delete;
    StdoutCapture &operator=(const StdoutCapture &) = delete;

    // Lines printed since construction (or since the last call), without line feeds.
    QStringList takeLines();

private:
    QTemporaryFile m_file;
    int m_savedStdout = -1;
    qint64 m_readOffset = 0;
};
