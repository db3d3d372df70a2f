// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <nlohmann/json.hpp>

#include <string>

struct User;
struct MedicalProfile;
struct Subscription;
struct Notification;
struct AirReading;
struct WeatherReading;

// The records the app decodes. Every value is a string, and every key is
// always present, also in a refusal, so that any answer decodes.
using Json = nlohmann::ordered_json;

// No answer carries an account's row id. The "userid" of a record is empty,
// except in the answer to a login, which carries the new session's token
// there: the token is a credential, and it is handed out once.

// LoginModel with scode "1".
Json acceptedRecord(const User &user, const std::string &message);
// LoginModel with scode "1" and the token of the session a login opened.
Json sessionRecord(const User &user, const std::string &token, const std::string &message);
// LoginModel with scode "0" and empty user fields.
Json refusedRecord(const std::string &message);

Json medicalDetailsRecord(const MedicalProfile &profile); // ProfileMedDetailsModel
Json medicalConditionRecord(const MedicalProfile &profile); // ProfileMedModel
Json subscriptionRecord(const Subscription &subscription); // ProfileSubModel
Json notificationRecord(const Notification &notification); // NotificationModel
// A value the source did not give is "–" in these two.
Json airQualityRecord(const AirReading &air); // AirQualityData
Json weatherRecord(const WeatherReading &weather); // WeatherData

// Fixed-point text with the given number of decimals.
std::string decimalText(double value, int decimals);
