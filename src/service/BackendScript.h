// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// The backend's operations, one script each.
enum class BackendScript {
    Register,
    Login,
    ResetPassword,
    UpdateUser,
    SaveMedical,
    CheckMedicalDetails,
    CheckMedical,
    CheckSubscription,
    Notification,
    LocationLogs,
    Feedbacks,
    Logout,
    AirQuality,
    Weather,
};

// Backend host + "/tarnelo/v1/", formed once.
const QString &backendBaseUrl();
// The base URL + the script's file name, formed once per script.
const QString &scriptUrl(BackendScript script);
// The script's query keys in the order they are sent.
const QStringList &scriptKeys(BackendScript script);
// Account and list requests encode their values; position requests send them
// as they are.
bool encodesValues(BackendScript script);
// Text sent after the keys, verbatim, by scripts that always send it.
QString fixedTail(BackendScript script);
