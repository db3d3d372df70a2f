// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/PositionSetting.h"

#include "location/LocationLog.h"

#include <QLocale>

std::optional<PositionSetting> PositionSetting::parse(const QString &text)
{
    const QString source = text.section(QLatin1Char(':'), 0, 0);
    const QString argument = text.section(QLatin1Char(':'), 1);
    PositionSetting setting;
    if (text == QLatin1String("geoclue"))
        setting.source = Source::Geoclue;
    else if (text == QLatin1String("denied"))
        setting.source = Source::Denied;
    else if (text == QLatin1String("none"))
        setting.source = Source::None;
    else if (source == QLatin1String("nmea") && !argument.isEmpty()) {
        setting.source = Source::Nmea;
        setting.nmeaFile = argument;
    } else if (source == QLatin1String("fixed")) {
        const QStringList parts = argument.split(QLatin1Char(','));
        bool latOk = false;
        bool lonOk = false;
        const QLocale c = QLocale::c();
        setting.fixedPosition = QGeoCoordinate(c.toDouble(parts.value(0).trimmed(), &latOk), c.toDouble(parts.value(1).trimmed(), &lonOk));
        if (parts.size() != 2 || !latOk || !lonOk || !setting.fixedPosition.isValid())
            return std::nullopt;
        setting.source = Source::Fixed;
    } else
        return std::nullopt;
    return setting;
}

PositionSetting PositionSetting::fromEnvironment()
{
    const QString text = qEnvironmentVariable("TARNELO_POSITION");
    if (text.isEmpty())
        return {};
    const std::optional<PositionSetting> setting = parse(text);
    if (!setting)
        qCWarning(lcLocation) << "TARNELO_POSITION is not understood, using geoclue:" << text;
    return setting.value_or(PositionSetting {});
}
