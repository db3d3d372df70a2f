// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <nlohmann/json.hpp>

#include <string>

struct User;
struct MedicalProfile;
struct Subscription;
struct Notification;
struct Pollutants;
struct WeatherReading;

// The records the app decodes. Every value is a string, and every key is
// always present, also in a refusal, so that any answer decodes.
using Json = nlohmann::ordered_json;

// LoginModel with scode "1".
Json acceptedRecord(const User &user, const std::string &message);
// LoginModel with scode "0" and empty user fields.
Json refusedRecord(const std::string &message);
// The refusal for a well-formed user id that has no account.
Json unknownUserRecord();

Json medicalDetailsRecord(std::int64_t userId, const MedicalProfile &profile); // ProfileMedDetailsModel
Json medicalConditionRecord(const MedicalProfile &profile); // ProfileMedModel
Json subscriptionRecord(const Subscription &subscription); // ProfileSubModel
Json notificationRecord(std::int64_t userId, const Notification &notification); // NotificationModel
Json airQualityRecord(int usEpaCategory, const Pollutants &pollutants); // AirQualityData
Json weatherRecord(const WeatherReading &weather); // WeatherData

// Fixed-point text with the given number of decimals.
std::string decimalText(double value, int decimals);
