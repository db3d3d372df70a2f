// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/JsonBody.h"
#include "service/BackendScript.h"
#include "service/RecordFetch.h"
#include "storage/SQliteLogin.h"

#include <QObject>
#include <QVariantList>
#include <QVector>

// Fetches one of the signed-in user's lists from the backend: reads the user
// id from the local store, asks the script for "?userid=<id>" and publishes
// either the decoded list as `items` or the failure text as `errorMessage`.
class ListFetcher : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList items READ itemsForDisplay NOTIFY itemsChanged)
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged)
    Q_PROPERTY(QString checksuburl READ checksuburl CONSTANT)

public:
    Q_INVOKABLE void fetch();

    // The items as JSON-shaped maps, one per record, for the screens.
    virtual QVariantList itemsForDisplay() const = 0;
    // Null until a fetch failed; cleared by the next one that succeeds.
    QString errorMessage() const { return m_errorMessage; }
    QString checksuburl() const { return scriptUrl(m_script); }

    SQliteLogin loginProfileTable;

Q_SIGNALS:
    void itemsChanged();
    void errorMessageChanged();

protected:
    ListFetcher(BackendScript script, QObject *parent);

    virtual void requestItems(const QUrl &url) = 0;
    // Told when a fetch starts and when it has published its outcome.
    virtual void setBusy(bool) { }
    void itemsPublished();
    void failed(const QString &message);

private:
    BackendScript m_script;
    QString m_errorMessage;
};

// The list fetcher for one record type.
template<typename T> class RecordListFetcher : public ListFetcher
{
public:
    const QVector<T> &items() const { return m_items; }
    QVariantList itemsForDisplay() const override { return toJsonArray(m_items).toVariantList(); }

protected:
    using ListFetcher::ListFetcher;

    void requestItems(const QUrl &url) override
    {
        fetchRecords<T>(
            url, this,
            [this](QVector<T> items) {
                m_items = std::move(items);
                itemsPublished();
            },
            [this](const QString &message) { failed(message); });
    }

private:
    QVector<T> m_items;
};
