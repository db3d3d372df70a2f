// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "location/GeocoderBackend.h"

#include <QObject>
#include <QThreadPool>

#include <memory>

class OfflineGazetteer;

// Looks places up in the shipped gazetteer on a worker thread of its own. The
// file is opened there on the first lookup; when it cannot be, every lookup
// fails with the same error.
class OfflineGeocoderBackend : public GeocoderBackend
{
public:
    explicit OfflineGeocoderBackend(const QString &gazetteerPath);
    ~OfflineGeocoderBackend() override;

    void reverseGeocode(const QGeoCoordinate &location, Geocoder::Completion done) override;
    void geocode(const QString &address, Geocoder::Completion done) override;

private:
    using Lookup = std::function<QList<Placemark>(OfflineGazetteer &)>;
    void run(Lookup lookup, Geocoder::Completion done);
    OfflineGazetteer *gazetteer();

    const QString m_path;
    // Touched only by lookups, which the single worker runs one at a time.
    std::unique_ptr<OfflineGazetteer> m_gazetteer;
    bool m_openAttempted = false;
    // Completions are posted to it, so they run on its thread and are dropped
    // with it.
    QObject m_receiver;
    QThreadPool m_worker;
};
