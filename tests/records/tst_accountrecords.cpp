// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/AlertModel.h"
#include "records/JsonBody.h"
#include "records/LoginModel.h"
#include "records/NotificationModel.h"
#include "records/ProfileMedDetailsModel.h"
#include "records/ProfileMedModel.h"
#include "records/ProfileSubModel.h"
#include "records/User.h"

#include <QTest>

#include <initializer_list>

namespace
{
const char loginKeys[] = "userid fullname phonenumber emailaddress dateofbirth gender registerdate scode messageresponse";

// An object whose every value is distinct, so a value landing in the wrong
// member shows up.
QJsonObject completeObject(const char *keys)
{
    QJsonObject object;
    for (const QString &key : QString::fromLatin1(keys).split(QLatin1Char(' ')))
        object.insert(key, QString(QStringLiteral("value of ") + key));
    return object;
}

// Decodes a complete object, checks each key (written out here, apart from the
// record's own table) reached the member listed at its position, then encodes
// it as a list and decodes that again. Returns what went wrong, or nothing.
template<typename T> QString roundTripFault(const char *keys, std::initializer_list<QString T::*> members)
{
    const QJsonObject original = completeObject(keys);
    const DecodeResult<T> once = T::fromJson(original);
    if (!once.ok())
        return once.error;
    const QStringList names = QString::fromLatin1(keys).split(QLatin1Char(' '));
    int i = 0;
    for (QString T::*member : members) {
        if ((*once.value).*member != original.value(names.at(i)).toString())
            return QStringLiteral("member for \"%1\" holds \"%2\"").arg(names.at(i), (*once.value).*member);
        ++i;
    }
    const auto twice = decodeList<T>(QJsonDocument(toJsonArray(QVector<T> { *once.value, *once.value })).toJson());
    if (once.value->toJson() != original || !twice.ok() || twice.value->size() != 2 || twice.value->at(1).toJson() != original)
        return QStringLiteral("did not encode and decode back: ") + twice.error;
    return {};
}
} // namespace

class AccountRecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRecordRoundTrips()
    {
        using L = LoginModel;
        QCOMPARE(roundTripFault<L>(loginKeys,
                                   { &L::userid, &L::fullname, &L::phonenumber, &L::emailaddress, &L::dateofbirth, &L::gender, &L::registerdate, &L::scode,
                                     &L::messageresponse }),
                 QString());
        QCOMPARE(roundTripFault<AlertModel>("id message", { &AlertModel::id, &AlertModel::message }), QString());
        using N = NotificationModel;
        QCOMPARE(roundTripFault<N>("id userid topic message readmessage posteddate",
                                   { &N::id, &N::userid, &N::topic, &N::message, &N::readmessage, &N::posteddate }),
                 QString());
        using M = ProfileMedModel;
        QCOMPARE(roundTripFault<M>("id conditionstatus conditionname", { &M::id, &M::conditionstatus, &M::conditionname }), QString());
        using D = ProfileMedDetailsModel;
        QCOMPARE(roundTripFault<D>("id userid conditionstatus conditionname emergencycontact phonenumber relationship weight height smokerstatus smoker "
                                   "moredetails scode messageresponse",
                                   { &D::id, &D::userid, &D::conditionstatus, &D::conditionname, &D::emergencycontact, &D::phonenumber, &D::relationship,
                                     &D::weight, &D::height, &D::smokerstatus, &D::smoker, &D::moredetails, &D::scode, &D::messageresponse }),
                 QString());
        using S = ProfileSubModel;
        QCOMPARE(roundTripFault<S>("id type package status", { &S::id, &S::type, &S::package, &S::status }), QString());
    }

    // A refused login answers with only a status and a message; that must not
    // pass for a user with empty fields, nor may a number pass for an id.
    void loginKeysAreRequiredText()
    {
        QJsonObject numeric = completeObject(loginKeys);
        numeric.insert(QStringLiteral("userid"), 12);
        const QJsonObject refused { { QStringLiteral("scode"), QStringLiteral("0") }, { QStringLiteral("messageresponse"), QStringLiteral("Wrong") } };
        QCOMPARE(decodeList<LoginModel>(QJsonDocument(QJsonArray { numeric }).toJson()).error,
                 QStringLiteral(R"(element 0: key "userid": expected a string, found a number)"));
        QCOMPARE(decodeList<LoginModel>(QJsonDocument(QJsonArray { refused }).toJson()).error,
                 QStringLiteral(R"(element 0: key "userid": expected a string, but the key is missing)"));
    }

    void userEqualityWeighsEveryField()
    {
        const User user { QStringLiteral("12"),         QStringLiteral("Ada"), QStringLiteral("0712345678"), QStringLiteral("ada@example.org"),
                          QStringLiteral("1990-12-10"), QStringLiteral("2"),   QStringLiteral("2024-01-05") };
        QVERIFY(user == User(user));
        QVERIFY(!(user != User(user)));
        for (QString User::*field :
             { &User::userid, &User::fullname, &User::phonenumber, &User::emailaddress, &User::dateofbirth, &User::gender, &User::registerdate }) {
            User other = user;
            other.*field += QLatin1Char('x');
            QVERIFY2(!(user == other) && !(other == user) && user != other, qPrintable(other.*field));
        }
    }
};

QTEST_GUILESS_MAIN(AccountRecordsTest)
#include "tst_accountrecords.moc"
