// SPDX-License-Identifier: GPL-3.0-or-later
#include "location/OfflineGeocoderBackend.h"

#include "location/LocationLog.h"
#include "location/OfflineGazetteer.h"

OfflineGeocoderBackend::OfflineGeocoderBackend(const QString &gazetteerPath)
    : m_path(gazetteerPath)
{
    // One thread: the gazetteer's connection serves one lookup at a time.
    m_worker.setMaxThreadCount(1);
}

OfflineGeocoderBackend::~OfflineGeocoderBackend()
{
    // No lookup may outlive the gazetteer or post to the receiver while it
    // goes; what they already posted goes with the receiver.
    m_worker.clear();
    m_worker.waitForDone();
}

void OfflineGeocoderBackend::reverseGeocode(const QGeoCoordinate &location, Geocoder::Completion done)
{
    run(
        [location](OfflineGazetteer &gazetteer) {
            const std::optional<Placemark> place = gazetteer.placeAt(location);
            return place ? QList<Placemark> { *place } : QList<Placemark> {};
        },
        std::move(done));
}

void OfflineGeocoderBackend::geocode(const QString &address, Geocoder::Completion done)
{
    run([address](OfflineGazetteer &gazetteer) { return gazetteer.placesNamed(address, geocodeResultLimit); }, std::move(done));
}

void OfflineGeocoderBackend::run(Lookup lookup, Geocoder::Completion done)
{
    m_worker.start([this, lookup = std::move(lookup), done = std::move(done)] {
        QList<Placemark> placemarks;
        QString error;
        if (OfflineGazetteer *gazetteer = this->gazetteer())
            placemarks = lookup(*gazetteer);
        else
            error = QStringLiteral("The offline gazetteer is not available");
        QMetaObject::invokeMethod(
            &m_receiver, [done, placemarks, error] { done(placemarks, error); }, Qt::QueuedConnection);
    });
}

OfflineGazetteer *OfflineGeocoderBackend::gazetteer()
{
    if (!m_openAttempted) {
        m_openAttempted = true;
        QString why;
        m_gazetteer = OfflineGazetteer::open(m_path, &why);
        if (!m_gazetteer)
            qCWarning(lcLocation) << "Cannot open the offline gazetteer" << m_path << ":" << why;
    }
    return m_gazetteer.get();
}
