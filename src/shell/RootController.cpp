// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/RootController.h"

RootController::RootController(QObject *parent)
    : QObject(parent)
    , m_rootView(QStringLiteral("HomeView"))
{
}

void RootController::showHome()
{
    replaceRoot(QStringLiteral("HomeView"));
}

void RootController::showLogin()
{
    replaceRoot(QStringLiteral("LoginView"));
}

void RootController::replaceRoot(const QString &view)
{
    m_rootView = view;
    Q_EMIT rootReplaced();
}
