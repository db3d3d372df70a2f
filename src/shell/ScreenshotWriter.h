// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class QQuickWindow;

// Saves the window to a PNG once it has drawn its first frame and settled (no
// new frame for a moment, so that animations have ended and quick answers have
// been drawn), then ends the event loop: 0 when the file was written.
class ScreenshotWriter : public QObject
{
    Q_OBJECT

public:
    ScreenshotWriter(QQuickWindow *window, QString path, QObject *parent = nullptr);

private:
    void onFrameSwapped();
    void save();

    QQuickWindow *m_window;
    QString m_path;
    QTimer m_settle;
    QElapsedTimer m_sinceFirstFrame;
};
