// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "account/AccountScreenModel.h"
#include "common/SignedInUser.h"

#include <QTest>

#include <string>

// Lets the event loop run until the screen's request has been answered.
inline bool waitUntilAnswered(const AccountScreenModel &model)
{
    return QTest::qWaitFor([&model] { return !model.isLoading(); }, 5000);
}

// The backend's answer to an account request, as it names user 12, Amina.
inline std::string answerWithCode(const char *code, const char *message = "Welcome back")
{
    return std::string(R"([{"userid":"12","fullname":"Amina Wanjiru","phonenumber":"0712","emailaddress":"amina@example.com","dateofbirth":"1990-04-02",)"
                       R"("gender":"2","registerdate":"2026-01-05","scode":")")
        + code + R"(","messageresponse":")" + message + R"("}])";
}

// The backend's answer holding Amina's saved medical profile.
inline constexpr char savedMedicalProfile[]
    = R"([{"id":"3","userid":"12","conditionstatus":"Yes","conditionname":"Asthma","emergencycontact":"Juma Otieno","phonenumber":"0722000111",)"
      R"("relationship":"Spouse","weight":"64","height":"5.6","smokerstatus":"1-10 Light smoker","smoker":"Smoker","moredetails":"Inhaler at night",)"
      R"("scode":"1","messageresponse":"ok"}])";
