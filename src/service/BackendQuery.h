// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/BackendScript.h"

#include <QString>
#include <QUrl>

#include <initializer_list>

struct QueryValue {
    const char *key;
    QString value;
};

// The whole request URL text for a script: its URL, then "?" and each of its
// keys with "=" and the value, joined by "&", in the catalogue's order whatever
// the order given here, then the script's fixed tail. Account and list scripts
// percent-encode each value; position scripts insert them as they are.
QString backendRequestText(BackendScript script, std::initializer_list<QueryValue> values);

// A URL for a request text, or an invalid one (not to be sent) when the text
// is not a well-formed URL, e.g. a verbatim value with a blank in it.
QUrl requestUrl(const QString &text);

// Encodes everything a query value could be misread by: "&", "=", "+", "#",
// blanks, other reserved and all non-ASCII characters.
QString percentEncodeQueryValue(const QString &value);

// A coordinate as the shortest decimal text that reads back as the same double.
QString coordinateText(double degrees);
