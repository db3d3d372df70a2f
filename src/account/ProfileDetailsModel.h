// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/PersonalDetailsModel.h"
#include "storage/SQliteLogin.h"

// The personal bio: the signed-in user's name, address, birth date and
// gender, changed on the backend first and on the device only once the user
// has read that the backend took them.
class ProfileDetailsModel : public PersonalDetailsModel
{
    Q_OBJECT

public:
    explicit ProfileDetailsModel(QObject *parent = nullptr);

    // Fills the form from the stored user; a guest's form stays empty.
    void load();
    Q_INVOKABLE void update();

Q_SIGNALS:
    // The device now holds the new details.
    void userUpdated();

protected:
    void copyRecord(const LoginModel &record) override;
    void alertDismissed() override;

private:
    SQliteLogin m_loginProfileTable;
    // Set by an answer, so that the "OK" of a later refusal (a cleared name)
    // cannot write an earlier accepted answer's form to the device.
    bool m_answerShown = false;
};
