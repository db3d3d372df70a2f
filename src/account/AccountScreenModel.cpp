// SPDX-License-Identifier: GPL-3.0-or-later
#include "account/AccountScreenModel.h"

#include "common/Console.h"
#include "records/JsonBody.h"
#include "service/HttpGet.h"

#include <QTextCodec>

namespace
{
// The body as text, or nothing when it is not valid UTF-8 and so could not
// be turned back into the same bytes.
std::optional<QString> utf8Text(const QByteArray &body)
{
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForName("UTF-8")->toUnicode(body.constData(), body.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0)
        return std::nullopt;
    return text;
}
} // namespace

AccountScreenModel::AccountScreenModel(QObject *parent)
    : QObject(parent)
{
}

QString AccountScreenModel::unreachableMessage()
{
    return QStringLiteral("The service could not be reached. Please check your connection and try again.");
}

void AccountScreenModel::setShowingAlert(bool showing)
{
    if (m_showingAlert == showing)
        return;
    m_showingAlert = showing;
    Q_EMIT alertChanged();
}

void AccountScreenModel::alertAccepted()
{
    setShowingAlert(false);
    alertDismissed();
}

bool AccountScreenModel::requestAccepted() const
{
    return !m_responseCode.isEmpty() && m_responseCode != QLatin1String("0");
}

std::optional<QString> AccountScreenModel::decodedAnswerAlert(int) const
{
    if (m_responseCode.isEmpty())
        return std::nullopt;
    return m_responseMessage;
}

void AccountScreenModel::setLoading(bool loading)
{
    m_isLoading = loading;
    Q_EMIT isLoadingChanged();
}

void AccountScreenModel::showAlert(const QString &message)
{
    m_alertMessage = message;
    m_showingAlert = true;
    Q_EMIT alertChanged();
}

void AccountScreenModel::sendRequest(BackendScript script, std::initializer_list<QueryValue> values)
{
    const QUrl url = requestUrl(backendRequestText(script, values));
    if (url.isEmpty()) {
        setLoading(false);
        return;
    }
    httpGet(url, this, [this](const HttpAnswer &answer) { handleAnswer(answer); });
}

void AccountScreenModel::handleAnswer(const HttpAnswer &answer)
{
    // Without an answer the user must still learn that nothing happened.
    if (!answer.received()) {
        Console::printLine(QStringLiteral("Error: ") + answer.error);
        showAlert(unreachableMessage());
        setLoading(false);
        return;
    }
    const std::optional<QString> text = utf8Text(answer.body);
    if (!text) {
        Console::printLine(QStringLiteral("Error: Cannot convert JSON string to Data"));
        showAlert(QStringLiteral("Please click ok and try register again"));
        setLoading(false);
        return;
    }
    m_testData = *text;
    const DecodeResult<QVector<LoginModel>> decoded = decodeList<LoginModel>(text->toUtf8());
    if (decoded.ok()) {
        for (const LoginModel &record : *decoded.value) {
            m_responseCode = record.scode;
            m_responseMessage = record.messageresponse;
            copyRecord(record);
        }
        Q_EMIT responseChanged();
        if (const std::optional<QString> message = decodedAnswerAlert(decoded.value->size()))
            showAlert(*message);
    } else {
        Q_EMIT responseChanged();
        Console::printLine(QStringLiteral("Error decoding JSON: ") + decoded.error);
        showAlert(QStringLiteral("Please click ok and try register again"));
    }
    setLoading(false);
}
