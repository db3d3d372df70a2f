// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/FirstFrameGate.h"

#include "common/AfterFirstFrame.h"

FirstFrameGate::FirstFrameGate(QObject *parent)
    : QObject(parent)
{
    AfterFirstFrame::run(this, [this] {
        m_open = true;
        Q_EMIT opened();
    });
}
