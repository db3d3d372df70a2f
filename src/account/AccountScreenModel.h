// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/LoginModel.h"
#include "service/BackendQuery.h"

#include <QObject>
#include <QString>

#include <optional>

struct HttpAnswer;

// What every account screen shares: the progress flag, the alert titled
// "Notification" with its message, and the handling of the backend's answer,
// a JSON array of LoginModel whose last element sets the response fields.
// A screen adds its own fields and decides what the alert's "OK" does.
class AccountScreenModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)
    Q_PROPERTY(QString alertMessage READ alertMessage NOTIFY alertChanged)
    Q_PROPERTY(bool showingAlert READ showingAlert WRITE setShowingAlert NOTIFY alertChanged)
    Q_PROPERTY(QString responseCode READ responseCode NOTIFY responseChanged)
    Q_PROPERTY(QString testData READ testData NOTIFY responseChanged)
    Q_PROPERTY(QString responseMessage READ responseMessage NOTIFY responseChanged)

public:
    bool isLoading() const { return m_isLoading; }
    QString alertMessage() const { return m_alertMessage; }
    bool showingAlert() const { return m_showingAlert; }
    void setShowingAlert(bool showing);
    QString responseCode() const { return m_responseCode; }
    QString testData() const { return m_testData; }
    QString responseMessage() const { return m_responseMessage; }

    // The alert's "OK": closes it, then the screen's own rule runs.
    Q_INVOKABLE void alertAccepted();

    // What the alert says when no answer came at all.
    static QString unreachableMessage();

Q_SIGNALS:
    void isLoadingChanged();
    void alertChanged();
    void responseChanged();

protected:
    explicit AccountScreenModel(QObject *parent);

    void setLoading(bool loading);
    void showAlert(const QString &message);
    // Sends the script with its values percent-encoded; the answer is handled
    // here, and each decoded record reaches copyRecord first.
    void sendRequest(BackendScript script, std::initializer_list<QueryValue> values);
    void handleAnswer(const HttpAnswer &answer);
    // Whether the backend said yes: any code but none or "0".
    bool requestAccepted() const;

    // Each record of the answer, in order; the response fields are already set from it.
    virtual void copyRecord(const LoginModel &) { }
    // The screen's rule for the alert's "OK"; nothing by default.
    virtual void alertDismissed() { }
    // What the alert says once an answer of so many records is decoded, or
    // nothing to leave it closed: by default the backend's message, whenever
    // it gave a code.
    virtual std::optional<QString> decodedAnswerAlert(int records) const;

private:
    bool m_isLoading = false;
    QString m_alertMessage;
    bool m_showingAlert = false;
    QString m_responseCode;
    QString m_testData = QStringLiteral("Try again please!");
    QString m_responseMessage;
};
