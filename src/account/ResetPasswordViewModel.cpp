// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/ResetPasswordViewModel.h"

ResetPasswordViewModel::ResetPasswordViewModel(QObject *parent)
    : EmailScreenModel(parent)
{
}

void ResetPasswordViewModel::resetPassword()
{
    if (!beginRequest(false))
        return;
    sendRequest(BackendScript::ResetPassword, { { "emailaddress", trimmedEmail() } });
}

void ResetPasswordViewModel::alertDismissed()
{
    if (requestAccepted())
        Q_EMIT loginRequested();
}
