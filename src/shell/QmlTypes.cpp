// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/QmlTypes.h"

#include "account/AccountScreenModel.h"
#include "account/LoginViewModel.h"
#include "account/NotificationViewModel.h"
#include "account/PersonalDetailsModel.h"
#include "account/ProfileDetailsModel.h"
#include "account/ProfileMedicalViewModel.h"
#include "account/ProfileSubscriptionViewModel.h"
#include "account/ProfileViewModel.h"
#include "account/RegisterViewModel.h"
#include "account/ResetPasswordViewModel.h"
#include "airquality/AirAlertSettingsModel.h"
#include "airquality/HealthTipsModel.h"
#include "airquality/HistoryViewModel.h"
#include "airquality/MainCategoryViewModel.h"
#include "airquality/MainHeaderViewModel.h"
#include "airquality/MainIndoorsViewModel.h"
#include "airquality/MainWeatherViewModel.h"
#include "airquality/PlaceAirCardModel.h"
#include "airquality/PollutantCardModel.h"
#include "airquality/ScaleAdvisories.h"
#include "airquality/TipsViewModel.h"
#include "location/SearchLocationViewModel.h"
#include "shell/FirstFrameGate.h"
#include "shell/HomeViewModel.h"
#include "shell/RootController.h"
#include "shell/SymbolImageProvider.h"

#include <QQmlEngine>
#include <QUrl>

namespace
{
constexpr const char *uri = "Tarnelo";
constexpr int major = 1;
constexpr int minor = 0;
} // namespace

void QmlTypes::registerAll(QQmlEngine &engine, RootController *rootController)
{
    qmlRegisterSingletonType(QUrl(QStringLiteral("qrc:/qml/Theme.qml")), uri, major, minor, "Theme");
    qmlRegisterSingletonInstance(uri, major, minor, "RootController", rootController);
    qmlRegisterSingletonType<FirstFrameGate>(uri, major, minor, "FirstFrameGate", [](QQmlEngine *, QJSEngine *) -> QObject * { return new FirstFrameGate; });
    qmlRegisterUncreatableType<AccountScreenModel>(uri, major, minor, "AccountScreenModel", QStringLiteral("Each account screen has its own model"));
    qmlRegisterType<LoginViewModel>(uri, major, minor, "LoginViewModel");
    qmlRegisterType<ProfileMedicalViewModel>(uri, major, minor, "ProfileMedicalViewModel");
    qmlRegisterType<NotificationViewModel>(uri, major, minor, "NotificationViewModel");
    qmlRegisterType<ProfileSubscriptionViewModel>(uri, major, minor, "ProfileSubscriptionViewModel");
    qmlRegisterUncreatableType<PersonalDetailsModel>(uri, major, minor, "PersonalDetailsModel",
                                                     QStringLiteral("Registration and the bio have their own models"));
    qmlRegisterType<ProfileDetailsModel>(uri, major, minor, "ProfileDetailsModel");
    qmlRegisterType<ProfileViewModel>(uri, major, minor, "ProfileViewModel");
    qmlRegisterType<RegisterViewModel>(uri, major, minor, "RegisterViewModel");
    qmlRegisterType<ResetPasswordViewModel>(uri, major, minor, "ResetPasswordViewModel");
    qmlRegisterType<HomeViewModel>(uri, major, minor, "HomeViewModel");
    qmlRegisterType<AirAlertSettingsModel>(uri, major, minor, "AirAlertSettingsModel");
    qmlRegisterType<HealthTipsModel>(uri, major, minor, "HealthTipsModel");
    qmlRegisterType<HistoryViewModel>(uri, major, minor, "HistoryViewModel");
    qmlRegisterType<MainCategoryViewModel>(uri, major, minor, "MainCategoryViewModel");
    qmlRegisterType<MainHeaderViewModel>(uri, major, minor, "MainHeaderViewModel");
    qmlRegisterType<PlaceAirCardModel>(uri, major, minor, "PlaceAirCardModel");
    qmlRegisterSingletonType<ScaleAdvisories>(uri, major, minor, "ScaleAdvisories", [](QQmlEngine *, QJSEngine *) -> QObject * { return new ScaleAdvisories; });
    qmlRegisterType<MainIndoorsViewModel>(uri, major, minor, "MainIndoorsViewModel");
    qmlRegisterType<MainWeatherViewModel>(uri, major, minor, "MainWeatherViewModel");
    qmlRegisterType<PollutantCardModel>(uri, major, minor, "PollutantCardModel");
    qmlRegisterType<SearchLocationViewModel>(uri, major, minor, "SearchLocationViewModel");
    qmlRegisterType<TipsViewModel>(uri, major, minor, "TipsViewModel");
    engine.addImageProvider(QStringLiteral("symbol"), new SymbolImageProvider);
}
