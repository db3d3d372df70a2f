// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/RootController.h"

#include <QObject>

class QQmlEngine;

// Counts the warnings and errors printed, QML's among them, so that a test
// can insist there were none.
class WarningCounter : public QObject
{
    Q_OBJECT

public:
    // Counts from zero again. Each test case's log takes the message handler
    // over when it starts, so call this once the test runs, in its init().
    Q_INVOKABLE void restart();
    Q_INVOKABLE int count() const;
};

// The setup of the Qt Quick tests of the screens: the app's font and QML
// types, per-test user files that start empty, and the context object
// "warnings".
class QuickTestSetup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine *engine);

private:
    RootController m_rootController;
    WarningCounter m_warnings;
};
