// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/PositionSourceFactory.h"

#include "location/FixedPositionSource.h"
#include "location/LocationLog.h"

#include <QFile>
#include <QNmeaPositionInfoSource>

namespace
{
QGeoPositionInfoSource *replayedLog(const QString &path, QObject *parent)
{
    auto *log = new QFile(path);
    if (!log->open(QIODevice::ReadOnly)) {
        qCWarning(lcLocation) << "Cannot read the NMEA log" << path << log->errorString();
        delete log;
        return nullptr;
    }
    // Simulation mode plays the log back at the pace of its own time stamps.
    auto *source = new QNmeaPositionInfoSource(QNmeaPositionInfoSource::SimulationMode, parent);
    log->setParent(source);
    source->setDevice(log);
    return source;
}

QGeoPositionInfoSource *deviceSource(QObject *parent)
{
    QGeoPositionInfoSource *source = QGeoPositionInfoSource::createSource(QStringLiteral("geoclue2"), parent);
    if (!source)
        source = QGeoPositionInfoSource::createDefaultSource(parent);
    if (!source)
        qCWarning(lcLocation) << "This device offers no position source";
    return source;
}
} // namespace

QGeoPositionInfoSource *createPositionSource(const PositionSetting &setting, QObject *parent)
{
    switch (setting.source) {
    case PositionSetting::Source::Geoclue:
        return deviceSource(parent);
    case PositionSetting::Source::Nmea:
        return replayedLog(setting.nmeaFile, parent);
    case PositionSetting::Source::Fixed:
        return new FixedPositionSource(setting.fixedPosition, parent);
    case PositionSetting::Source::Denied:
    case PositionSetting::Source::None:
        break;
    }
    return nullptr;
}
