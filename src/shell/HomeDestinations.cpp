// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/HomeDestinations.h"

#include <array>

namespace
{
struct Destination {
    QLatin1String key;
    QLatin1String signedInView;
    bool openToGuests;
};

const std::array<Destination, 6> destinations { {
    { QLatin1String("Profile"), QLatin1String("ProfileView"), false },
    { QLatin1String("Notification"), QLatin1String("NotificationView"), false },
    { QLatin1String("Map"), QLatin1String("SearchLocationView"), false },
    { QLatin1String("Health Tips"), QLatin1String("TipsView"), false },
    { QLatin1String("AQI Scale"), QLatin1String("ScaleView"), false },
    { QLatin1String("Home"), QLatin1String("MainView"), true },
} };

const QLatin1String loginView("LoginView");
} // namespace

QString HomeDestinations::viewFor(const QString &key, bool guest)
{
    for (const Destination &destination : destinations) {
        if (key == destination.key)
            return guest && !destination.openToGuests ? QString(loginView) : QString(destination.signedInView);
    }
    return {};
}

QStringList HomeDestinations::allViews()
{
    QStringList views { loginView };
    for (const Destination &destination : destinations)
        views.append(destination.signedInView);
    return views;
}
