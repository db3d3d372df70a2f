// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/EmailScreenModel.h"

// The password reset screen: the address the backend mails a new password to.
class ResetPasswordViewModel : public EmailScreenModel
{
    Q_OBJECT

public:
    explicit ResetPasswordViewModel(QObject *parent = nullptr);

    Q_INVOKABLE void resetPassword();

Q_SIGNALS:
    // The reset went through; the user should log in afresh.
    void loginRequested();

protected:
    void alertDismissed() override;
};
