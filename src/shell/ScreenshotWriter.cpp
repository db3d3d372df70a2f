// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ScreenshotWriter.h"

#include "service/NetworkSession.h"
#include "shell/ShellLogging.h"
#include "shell/WindowGrab.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QQuickWindow>

#include <algorithm>

namespace
{
// Screens fill in with the backend's answers; a picture taken before those
// arrive shows the placeholders instead.
bool awaitingAnswers()
{
    const auto replies = sharedNetworkSession().findChildren<QNetworkReply *>();
    return std::any_of(replies.cbegin(), replies.cend(), [](const QNetworkReply *reply) { return reply->isRunning(); });
}

constexpr int quietMilliseconds = 400;
// A screen that never stops animating is still photographed.
constexpr qint64 longestWaitMilliseconds = 10000;
} // namespace

ScreenshotWriter::ScreenshotWriter(QQuickWindow *window, QString path, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_path(std::move(path))
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(quietMilliseconds);
    connect(&m_settle, &QTimer::timeout, this, [this] {
        if (awaitingAnswers() && m_sinceFirstFrame.elapsed() < longestWaitMilliseconds)
            m_settle.start();
        else
            save();
    });
    // Queued, because frameSwapped may come from the render thread.
    connect(m_window, &QQuickWindow::frameSwapped, this, &ScreenshotWriter::onFrameSwapped, Qt::QueuedConnection);
}

void ScreenshotWriter::onFrameSwapped()
{
    if (!m_sinceFirstFrame.isValid())
        m_sinceFirstFrame.start();
    if (m_sinceFirstFrame.elapsed() < longestWaitMilliseconds)
        m_settle.start();
}

void ScreenshotWriter::save()
{
    disconnect(m_window, nullptr, this, nullptr);
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    const bool saved = WindowGrab::grab(m_window).save(m_path, "PNG");
    if (!saved)
        qCCritical(lcShell) << "could not write the screenshot to" << m_path;
    QCoreApplication::exit(saved ? 0 : 1);
}
