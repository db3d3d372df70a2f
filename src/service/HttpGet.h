// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class QObject;
class QUrl;

// What came back for a GET: the body of whatever HTTP answer arrived, whatever
// its status (an error page is data to decode like any other), or the
// description of the transport failure when no answer arrived at all. A
// request that broke one of the rules ReplyGuard enforces is such a failure.
struct HttpAnswer {
    QByteArray body;
    QString error;

    bool received() const { return error.isNull(); }
};

// The backend's answers are a few kilobytes; anything near this is not one.
constexpr qint64 backendAnswerLimit = 2 * 1024 * 1024;

// Sends a GET without a body on the shared session, with a body of at most
// `bodyLimit` bytes and the configured deadline. `done` runs on the main
// thread, unless `context` was destroyed first, in which case nothing runs.
void httpGet(const QUrl &url, const QObject *context, std::function<void(const HttpAnswer &)> done, qint64 bodyLimit = backendAnswerLimit);
