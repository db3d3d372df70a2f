// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/AlertModel.h"
#include "records/JsonBody.h"
#include "records/LoginModel.h"
#include "records/NotificationModel.h"
#include "records/ProfileMedDetailsModel.h"
#include "records/ProfileMedModel.h"
#include "records/ProfileSubModel.h"

#include <QTest>

#include <functional>

namespace
{
// What the tests need to know of one record type: its wire keys in field order,
// its members read back by name in the same order, and its encoder. The keys are
// written out here on purpose, independently of the records' own tables.
struct RecordKind {
    QStringList keys;
    std::function<DecodeResult<QStringList>(const QJsonObject &)> decodeMembers;
    std::function<DecodeResult<QJsonObject>(const QJsonObject &)> roundTrip;
};

template<typename T> RecordKind kind(const char *keys, QStringList (*members)(const T &))
{
    RecordKind k;
    k.keys = QString::fromLatin1(keys).split(QLatin1Char(' '));
    k.decodeMembers = [members](const QJsonObject &object) {
        const DecodeResult<T> decoded = T::fromJson(object);
        return decoded.ok() ? DecodeResult<QStringList>::success(members(*decoded.value)) : DecodeResult<QStringList>::failure(decoded.error);
    };
    k.roundTrip = [](const QJsonObject &object) {
        const DecodeResult<T> decoded = T::fromJson(object);
        return decoded.ok() ? DecodeResult<QJsonObject>::success(decoded.value->toJson()) : DecodeResult<QJsonObject>::failure(decoded.error);
    };
    return k;
}

const QHash<QString, RecordKind> &kinds()
{
    static const QHash<QString, RecordKind> all {
        { QStringLiteral("LoginModel"),
          kind<LoginModel>("userid fullname phonenumber emailaddress dateofbirth gender registerdate scode messageresponse",
                           [](const LoginModel &m) {
                               return QStringList { m.userid, m.fullname,     m.phonenumber, m.emailaddress,   m.dateofbirth,
                                                    m.gender, m.registerdate, m.scode,       m.messageresponse };
                           }) },
        { QStringLiteral("AlertModel"),
          kind<AlertModel>("id message",
                           [](const AlertModel &m) {
                               return QStringList { m.id, m.message };
                           }) },
        { QStringLiteral("NotificationModel"),
          kind<NotificationModel>("id userid topic message readmessage posteddate",
                                  [](const NotificationModel &m) { return QStringList { m.id, m.userid, m.topic, m.message, m.readmessage, m.posteddate }; }) },
        { QStringLiteral("ProfileMedModel"),
          kind<ProfileMedModel>("id conditionstatus conditionname",
                                [](const ProfileMedModel &m) {
                                    return QStringList { m.id, m.conditionstatus, m.conditionname };
                                }) },
        { QStringLiteral("ProfileMedDetailsModel"),
          kind<ProfileMedDetailsModel>(
              "id userid conditionstatus conditionname emergencycontact phonenumber relationship weight height smokerstatus smoker moredetails scode "
              "messageresponse",
              [](const ProfileMedDetailsModel &m) {
                  return QStringList { m.id,     m.userid, m.conditionstatus, m.conditionname, m.emergencycontact, m.phonenumber, m.relationship,
                                       m.weight, m.height, m.smokerstatus,    m.smoker,        m.moredetails,      m.scode,       m.messageresponse };
              }) },
        { QStringLiteral("ProfileSubModel"),
          kind<ProfileSubModel>("id type package status",
                                [](const ProfileSubModel &m) {
                                    return QStringList { m.id, m.type, m.package, m.status };
                                }) },
    };
    return all;
}

// A complete object whose every value is distinct, so a value landing in the
// wrong member shows up.
QJsonObject completeObject(const QStringList &keys)
{
    QJsonObject object;
    for (const QString &key : keys)
        object.insert(key, QString(QStringLiteral("value of ") + key));
    return object;
}

QStringList expectedMembers(const QStringList &keys)
{
    QStringList values;
    for (const QString &key : keys)
        values.append(QStringLiteral("value of ") + key);
    return values;
}
} // namespace

class AccountRecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodesEveryKeyIntoItsMember_data()
    {
        QTest::addColumn<QString>("record");
        for (auto it = kinds().cbegin(); it != kinds().cend(); ++it)
            QTest::newRow(qPrintable(it.key())) << it.key();
    }

    void decodesEveryKeyIntoItsMember()
    {
        QFETCH(QString, record);
        const RecordKind &k = kinds()[record];

        QJsonObject object = completeObject(k.keys);
        object.insert(QStringLiteral("unlisted"), 42);
        const auto decoded = k.decodeMembers(object);
        QVERIFY2(decoded.ok(), qPrintable(decoded.error));
        QCOMPARE(*decoded.value, expectedMembers(k.keys));
    }

    void roundTripKeepsExactlyTheKeys_data() { decodesEveryKeyIntoItsMember_data(); }

    void roundTripKeepsExactlyTheKeys()
    {
        QFETCH(QString, record);
        const RecordKind &k = kinds()[record];

        const QJsonObject original = completeObject(k.keys);
        const auto once = k.roundTrip(original);
        QVERIFY2(once.ok(), qPrintable(once.error));
        QCOMPARE(*once.value, original);
        const auto twice = k.roundTrip(*once.value);
        QVERIFY2(twice.ok(), qPrintable(twice.error));
        QCOMPARE(*twice.value, original);
    }

    // Every listed key is required and must be text; whichever one is wrong is
    // the one the error names.
    void everyKeyIsRequiredText_data()
    {
        QTest::addColumn<QString>("record");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("replacement");
        QTest::addColumn<QString>("found");

        for (auto it = kinds().cbegin(); it != kinds().cend(); ++it) {
            for (const QString &key : it->keys) {
                const QString row = it.key() + QLatin1Char('.') + key;
                QTest::addRow("%s missing", qPrintable(row)) << it.key() << key << QJsonValue(QJsonValue::Undefined) << "but the key is missing";
                QTest::addRow("%s null", qPrintable(row)) << it.key() << key << QJsonValue() << "found null";
                QTest::addRow("%s number", qPrintable(row)) << it.key() << key << QJsonValue(12) << "found a number";
            }
        }
    }

    void everyKeyIsRequiredText()
    {
        QFETCH(QString, record);
        QFETCH(QString, key);
        QFETCH(QJsonValue, replacement);
        QFETCH(QString, found);
        const RecordKind &k = kinds()[record];

        QJsonObject object = completeObject(k.keys);
        if (replacement.isUndefined())
            object.remove(key);
        else
            object.insert(key, replacement);

        const auto decoded = k.decodeMembers(object);
        QVERIFY(!decoded.ok());
        QCOMPARE(decoded.error, QStringLiteral("key \"%1\": expected a string, %2").arg(key, found));
    }

    // The backend answers a refused login with only a status and a message; that
    // must not pass for a user with empty fields.
    void loginAnswerWithoutUserFailsToDecode()
    {
        const auto result = decodeList<LoginModel>(R"([{"scode":"0","messageresponse":"Wrong password"}])");
        QVERIFY(!result.ok());
        QCOMPARE(result.error, QStringLiteral(R"(element 0: key "userid": expected a string, but the key is missing)"));
    }

    void numericUseridSinksTheWholeList()
    {
        const auto result = decodeList<NotificationModel>(R"([
            {"id":"1","userid":"12","topic":"t","message":"m","readmessage":"0","posteddate":"2024-01-05"},
            {"id":"2","userid":12,"topic":"t","message":"m","readmessage":"1","posteddate":"2024-01-06"}])");
        QVERIFY(!result.value.has_value());
        QCOMPARE(result.error, QStringLiteral(R"(element 1: key "userid": expected a string, found a number)"));
    }

    void emptyListAnswers()
    {
        QVERIFY(decodeList<NotificationModel>("[]").value->isEmpty());
        QVERIFY(decodeList<ProfileMedModel>("[]").value->isEmpty());
        QVERIFY(decodeList<ProfileMedDetailsModel>("[]").value->isEmpty());
        QVERIFY(decodeList<ProfileSubModel>("[]").value->isEmpty());
    }

    void listEncodesAndDecodesBack()
    {
        const QVector<ProfileSubModel> packages {
            { QStringLiteral("1"), QStringLiteral("Monthly"), QStringLiteral("Basic"), QStringLiteral("0") },
            { QStringLiteral("2"), QStringLiteral("Yearly"), QStringLiteral("Premium \"plus\" & more"), QStringLiteral("1") },
        };
        const auto result = decodeList<ProfileSubModel>(QJsonDocument(toJsonArray(packages)).toJson());
        QVERIFY2(result.ok(), qPrintable(result.error));
        QCOMPARE(result.value->size(), 2);
        QCOMPARE(result.value->at(1).id, QStringLiteral("2"));
        QCOMPARE(result.value->at(1).type, QStringLiteral("Yearly"));
        QCOMPARE(result.value->at(1).package, QStringLiteral("Premium \"plus\" & more"));
        QCOMPARE(result.value->at(1).status, QStringLiteral("1"));
        QCOMPARE(result.value->at(0).package, QStringLiteral("Basic"));
    }
};

QTEST_GUILESS_MAIN(AccountRecordsTest)
#include "tst_accountrecords.moc"
