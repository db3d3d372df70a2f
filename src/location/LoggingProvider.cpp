// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/LoggingProvider.h"

#include "common/Console.h"
#include "common/DoubleText.h"

LoggingProvider::LoggingProvider(QObject *parent)
    : LocationProvider(parent)
{
}

void LoggingProvider::authorizationRefused()
{
    Console::printLine(QStringLiteral("Location authorization denied or restricted."));
}

void LoggingProvider::didUpdateLocations(const QList<QGeoPositionInfo> &locations)
{
    if (locations.isEmpty())
        return;
    publishNewest(locations);
    const QGeoCoordinate at = locations.last().coordinate();
    Console::printLine(QStringLiteral("Latitude: ") + doubleText(at.latitude()) + QStringLiteral(", Longitude: ") + doubleText(at.longitude()));
}

void LoggingProvider::didFailWithError(const QString &description)
{
    Console::printLine(QStringLiteral("Location error: ") + description);
}
