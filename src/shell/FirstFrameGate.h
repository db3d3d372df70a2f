// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

// For the screens: whether the window has drawn its first frame, so that what
// is hidden or below the fold at start is built only after it. Open from the
// start where nothing holds work back (tests, tools), so that those see every
// screen whole at once.
class FirstFrameGate : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool open READ isOpen NOTIFY opened)

public:
    explicit FirstFrameGate(QObject *parent = nullptr);

    bool isOpen() const { return m_open; }

Q_SIGNALS:
    void opened();

private:
    bool m_open = false;
};
