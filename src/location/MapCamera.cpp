// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/MapCamera.h"

#include <QStringList>

std::optional<MapCamera> MapCamera::fromText(const QString &text)
{
    const QStringList fields = text.split(QLatin1Char(','));
    if (fields.size() != 3)
        return std::nullopt;
    bool ok[3] = {};
    MapCamera camera;
    camera.center = QGeoCoordinate(fields[0].toDouble(&ok[0]), fields[1].toDouble(&ok[1]));
    camera.zoomLevel = fields[2].toDouble(&ok[2]);
    if (!ok[0] || !ok[1] || !ok[2] || !camera.center.isValid() || camera.zoomLevel < 0)
        return std::nullopt;
    return camera;
}
