// SPDX-License-Identifier: GPL-3.0-or-later
// The records of the backend's answers, whose values are all text.
#include "records/AirQualityData.h"
#include "records/AlertModel.h"
#include "records/JsonBody.h"
#include "records/LoginModel.h"
#include "records/NotificationModel.h"
#include "records/ProfileMedDetailsModel.h"
#include "records/ProfileMedModel.h"
#include "records/ProfileSubModel.h"
#include "records/User.h"
#include "records/WeatherData.h"

#include <QTest>

#include <initializer_list>

namespace
{
// An object whose every value is distinct, so a value landing in the wrong
// member shows up.
QJsonObject completeObject(const char *keys)
{
    QJsonObject object;
    for (const QString &key : QString::fromLatin1(keys).split(QLatin1Char(' ')))
        object.insert(key, QString(QStringLiteral("value of ") + key));
    return object;
}

// Decodes a complete object and checks each key (written out here, apart from
// the record's own table) reached the member listed at its position. Returns
// what went wrong, or nothing.
template<typename T> QString decodeFault(const char *keys, std::initializer_list<QString T::*> members)
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
    return {};
}

// As decodeFault, then encodes the record as a list and decodes that again.
template<typename T> QString roundTripFault(const char *keys, std::initializer_list<QString T::*> members)
{
    const QString fault = decodeFault<T>(keys, members);
    if (!fault.isEmpty())
        return fault;
    const QJsonObject original = completeObject(keys);
    const T once = *T::fromJson(original).value;
    const auto twice = decodeList<T>(QJsonDocument(toJsonArray(QVector<T> { once, once })).toJson());
    if (once.toJson() != original || !twice.ok() || twice.value->size() != 2 || twice.value->at(1).toJson() != original)
        return QStringLiteral("did not encode and decode back: ") + twice.error;
    return {};
}
} // namespace

class BackendRecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRecordRoundTrips()
    {
        using L = LoginModel;
        QCOMPARE(roundTripFault<L>("userid fullname phonenumber emailaddress dateofbirth gender registerdate scode messageresponse",
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

    // The readings are only ever read.
    void everyReadingDecodes()
    {
        using A = AirQualityData;
        QCOMPARE(
            decodeFault<A>("id aqi co no no2 o3 so2 pm25 pm10 nh3", { &A::id, &A::aqi, &A::co, &A::no, &A::no2, &A::o3, &A::so2, &A::pm25, &A::pm10, &A::nh3 }),
            QString());
        using W = WeatherData;
        QCOMPARE(decodeFault<W>("id temp humid wind uv pollen", { &W::id, &W::temp, &W::humid, &W::wind, &W::uv, &W::pollen }), QString());
    }

    void userEqualityWeighsEveryField()
    {
        const User user { QStringLiteral("12"),         QStringLiteral("Ada"), QStringLiteral("0712345678"), QStringLiteral("ada@example.org"),
                          QStringLiteral("1990-12-10"), QStringLiteral("2"),   QStringLiteral("2024-01-05") };
        QVERIFY(user == User(user) && !(user != User(user)));
        for (QString User::*field :
             { &User::userid, &User::fullname, &User::phonenumber, &User::emailaddress, &User::dateofbirth, &User::gender, &User::registerdate }) {
            User other = user;
            other.*field += QLatin1Char('x');
            QVERIFY2(!(user == other) && !(other == user) && user != other, qPrintable(other.*field));
        }
    }
};

QTEST_GUILESS_MAIN(BackendRecordsTest)
#include "tst_backendrecords.moc"
