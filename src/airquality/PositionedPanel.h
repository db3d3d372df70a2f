// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/BackendScript.h"
#include "service/RecordFetch.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>
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
    // "Updated 12 min ago", counted from the answer that filled the fields, kept
    // current; empty until one has.
    Q_PROPERTY(QString updatedText READ updatedText NOTIFY updatedTextChanged)
    // Why the last refresh failed; empty after any answer.
    Q_PROPERTY(QString refreshProblem READ refreshProblem NOTIFY refreshProblemChanged)

public:
    // Every position sends a new request; none is skipped as a repeat.
    Q_INVOKABLE void showPosition(double latitude, double longitude);
    // The user's own refresh: the request again for the last position, if any.
    Q_INVOKABLE void refresh();
    QString updatedText() const;
    QString refreshProblem() const { return m_refreshProblem; }

    QString searchlat() const { return m_searchlat; }
    QString searchlog() const { return m_searchlog; }

Q_SIGNALS:
    void positionChanged();
    void updatedTextChanged();
    void refreshProblemChanged();

protected:
    // Takes ownership of the provider.
    PositionedPanel(BackendScript script, LocationProvider *provider, QObject *parent);
    virtual void requestReadings(const QUrl &url) = 0;
    // Sends the request again for the last position, if there is one.
    bool resend();

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
            [this, apply, settle](const QVector<T> &records) {
                if (!records.isEmpty()) {
                    apply(records.first());
                    filled();
                }
                answered();
                settle();
            },
            [this](const QString &) { failed(); });
    }

private:
    void filled();
    void answered();
    void failed();

    BackendScript m_script;
    QString m_searchlat = QStringLiteral("0");
    QString m_searchlog = QStringLiteral("0");
    bool m_hasPosition = false;
    bool m_refreshing = false;
    QString m_refreshProblem;
    QDateTime m_filledAt;
    QTimer m_ageTicks;
};
