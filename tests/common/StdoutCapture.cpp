// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/StdoutCapture.h"

#include <cstdio>
#include <unistd.h>

StdoutCapture::StdoutCapture()
{
    if (!m_file.open())
        qFatal("cannot create a file to capture standard output");
    std::fflush(stdout);
    m_savedStdout = dup(STDOUT_FILENO);
    dup2(m_file.handle(), STDOUT_FILENO);
}

StdoutCapture::~StdoutCapture()
{
    std::fflush(stdout);
    dup2(m_savedStdout, STDOUT_FILENO);
    close(m_savedStdout);
}

QStringList StdoutCapture::takeLines()
{
    std::fflush(stdout);
    QFile reader(m_file.fileName());
    if (!reader.open(QIODevice::ReadOnly) || !reader.seek(m_readOffset))
        return {};
    const QByteArray text = reader.readAll();
    m_readOffset += text.size();
    QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}
