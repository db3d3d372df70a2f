// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/BackendScript.h"
#include "service/RecordFetch.h"

#include <QObject>
#include <QString>
#include <QUrl>

class LocationProvider;

// A dashboard panel with a position provider of its own: at every position
// the provider publishes, it asks the backend for its readings there, with
// the position as "lat" and "lon".
class PositionedPanel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString searchlat READ searchlat NOTIFY positionChanged)
    Q_PROPERTY(QString searchlog READ searchlog NOTIFY positionChanged)

public:
    // Every position sends a new request; none is skipped as a repeat.
    Q_INVOKABLE void showPosition(double latitude, double longitude);

    QString searchlat() const { return m_searchlat; }
    QString searchlog() const { return m_searchlog; }

Q_SIGNALS:
    void positionChanged();

protected:
    // Takes ownership of the provider.
    PositionedPanel(BackendScript script, LocationProvider *provider, QObject *parent);
    virtual void requestReadings(const QUrl &url) = 0;

    // Fetches a list of T and hands its first record to `apply`; an empty
    // list or a failure keeps what the panel shows.
    template<typename T, typename Apply> void fetchFirstRecord(const QUrl &url, Apply apply)
    {
        fetchFirstRecord<T>(url, apply, [] {});
    }
    // As above, and `settle` runs after every list that decoded, an empty one
    // too, for what a panel works out from all it has received so far.
    template<typename T, typename Apply, typename Settle> void fetchFirstRecord(const QUrl &url, Apply apply, Settle settle)
    {
        fetchRecords<T>(
            url, this,
            [apply, settle](const QVector<T> &records) {
                if (!records.isEmpty())
                    apply(records.first());
                settle();
            },
            [](const QString &) {});
    }

private:
    BackendScript m_script;
    QString m_searchlat = QStringLiteral("0");
    QString m_searchlog = QStringLiteral("0");
};
