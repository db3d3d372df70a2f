// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/Geocoder.h"

#include "location/GazetteerFile.h"
#include "location/LocationLog.h"
#include "location/NominatimGeocoderBackend.h"
#include "location/OfflineGeocoderBackend.h"

namespace
{
std::unique_ptr<GeocoderBackend> backendFromEnvironment()
{
    const QString setting = qEnvironmentVariable("TARNELO_GEOCODER");
    const QLatin1String nominatim("nominatim:");
    if (setting.startsWith(nominatim) && setting.size() > nominatim.size())
        return std::make_unique<NominatimGeocoderBackend>(setting.mid(nominatim.size()));
    if (!setting.isEmpty() && setting != QLatin1String("offline"))
        qCWarning(lcLocation) << "TARNELO_GEOCODER is not understood, using the offline gazetteer:" << setting;
    return std::make_unique<OfflineGeocoderBackend>(gazetteerFilePath());
}
} // namespace

Geocoder::Geocoder(QObject *parent)
    : QObject(parent)
    , m_backend(backendFromEnvironment())
{
}

Geocoder::~Geocoder() = default;

void Geocoder::reverseGeocodeLocation(const QGeoCoordinate &location, Completion done)
{
    m_backend->reverseGeocode(location, std::move(done));
}

void Geocoder::geocodeAddressString(const QString &address, Completion done)
{
    m_backend->geocode(address, std::move(done));
}
