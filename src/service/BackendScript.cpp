// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/BackendScript.h"

#include "service/ServiceConfig.h"

#include <array>

namespace
{
enum class Values { Encoded, Verbatim };

struct Entry {
    BackendScript script;
    const char *fileName;
    Values values;
    const char *keys;
    const char *tail;
};

// In the order of the enum, so that an entry is found by its index.
constexpr std::array<Entry, 14> catalogue { {
    { BackendScript::Register, "register.php", Values::Encoded, "fullname emailaddress phonenumber dateofbirth password gender referral_code", "" },
    { BackendScript::Login, "login.php", Values::Encoded, "username passcode", "" },
    { BackendScript::ResetPassword, "resetpass.php", Values::Encoded, "emailaddress", "" },
    { BackendScript::UpdateUser, "updateuser.php", Values::Encoded, "fullname emailaddress phonenumber dateofbirth gender userid", "" },
    { BackendScript::SaveMedical, "savemedical.php", Values::Encoded,
      "userid conditionstatus conditionname emergencycontact phonenumber relationship weight height smokerstatus smoker moredetails", "" },
    // The backend wants every medical key on a read as well; the values are placeholders.
    { BackendScript::CheckMedicalDetails, "checkmedicaldetails.php", Values::Encoded, "userid",
      "&conditionstatus=0&conditionname=0&emergencycontact=0&phonenumber=0&relationship=0&weight=0&height=0&smoker=0&smokerstatus=0&moredetails=0" },
    { BackendScript::CheckMedical, "checkmedical.php", Values::Encoded, "userid", "" },
    { BackendScript::CheckSubscription, "checksubscription.php", Values::Encoded, "userid", "" },
    { BackendScript::Notification, "notification.php", Values::Encoded, "userid", "" },
    { BackendScript::LocationLogs, "locationlogs.php", Values::Verbatim,
      "txt_aqi txt_co txt_no txt_no2 txt_o3 txt_so2 txt_pm25 txt_pm10 txt_nh3 roundedCelsius txt_humid txt_wind txt_uv txt_pollen txt_lat txt_log searchlat "
      "searchlog user_id",
      "" },
    { BackendScript::Feedbacks, "feedbacks.php", Values::Encoded, "userid feedback", "" },
    { BackendScript::Logout, "logout.php", Values::Encoded, "userid", "" },
    { BackendScript::AirQuality, "airquality.php", Values::Verbatim, "lat lon", "" },
    { BackendScript::Weather, "weatherapi.php", Values::Verbatim, "lat lon", "" },
} };

const Entry &entry(BackendScript script)
{
    const Entry &found = catalogue.at(static_cast<std::size_t>(script));
    Q_ASSERT(found.script == script);
    return found;
}

template<typename T, typename Make> std::array<T, catalogue.size()> perScript(Make make)
{
    std::array<T, catalogue.size()> out;
    for (std::size_t i = 0; i < catalogue.size(); ++i)
        out[i] = make(catalogue[i]);
    return out;
}
} // namespace

const QString &backendBaseUrl()
{
    static const QString base = ServiceConfig::backendHost() + QStringLiteral("/tarnelo/v1/");
    return base;
}

const QString &scriptUrl(BackendScript script)
{
    static const auto urls = perScript<QString>([](const Entry &e) -> QString { return backendBaseUrl() + QLatin1String(e.fileName); });
    return urls.at(static_cast<std::size_t>(script));
}

const QStringList &scriptKeys(BackendScript script)
{
    static const auto keys = perScript<QStringList>([](const Entry &e) { return QString::fromLatin1(e.keys).split(QLatin1Char(' ')); });
    return keys.at(static_cast<std::size_t>(script));
}

bool encodesValues(BackendScript script)
{
    return entry(script).values == Values::Encoded;
}

QString fixedTail(BackendScript script)
{
    return QString::fromLatin1(entry(script).tail);
}
