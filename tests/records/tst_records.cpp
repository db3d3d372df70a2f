// SPDX-License-Identifier: GPL-3.0-or-later
// The strict JSON reader and the records of the answers the app reads with
// it: the backend's, whose values are all text, and OpenWeatherMap's, whose
// readings are numbers.
#include "records/AQIResponse.h"
#include "records/AirQualityData.h"
#include "records/AlertModel.h"
#include "records/JsonBody.h"
#include "records/LoginModel.h"
#include "records/MapPollutantModel.h"
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
// A record of the test's own, so the reader's rules and error paths are checked
// apart from any real record.
struct Sample {
    qint64 count = 0;
    double share = 0;
    QString name;

    static DecodeResult<Sample> fromJson(const QJsonObject &object)
    {
        JsonReader reader(object);
        Sample s;
        s.count = reader.integer("count");
        s.share = reader.number("share");
        s.name = reader.text("name");
        return reader.result(s);
    }
};

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
// the record's own table) reached the member listed at its position; a record
// the app also writes must then encode as a list and decode again. Returns
// what went wrong, or nothing.
template<typename T, bool readOnly = false> QString decodeFault(const char *keys, std::initializer_list<QString T::*> members)
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
    if constexpr (!readOnly) {
        const auto twice = decodeList<T>(QJsonDocument(toJsonArray(QVector<T> { *once.value, *once.value })).toJson());
        if (once.value->toJson() != original || !twice.ok() || twice.value->size() != 2 || twice.value->at(1).toJson() != original)
            return QStringLiteral("did not encode and decode back: ") + twice.error;
    }
    return {};
}

QByteArray currentPollution(const char *dt, const char *pmKey = "pm2_5")
{
    return QByteArray(R"({"coord":{"lon":-0.1278,"lat":51.5074},"list":[{"main":{"aqi":2},"components":{"co":201.94,"no":0,"no2":3.5,"o3":68.66,"so2":0.64,")")
        + pmKey + R"(":4.2,"pm10":5.1,"nh3":0.9},"dt":)" + dt + "}]}";
}
} // namespace

class RecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Bodies decoded as one record, a list of them, or a record holding both.
    // Every field is read before the outcome is asked for and the first error
    // wins; one bad element sinks the whole list.
    void decodesStrictly_data()
    {
        QTest::addColumn<QByteArray>("shape");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<qint64>("count");
        QTest::addColumn<QString>("error");

        const QByteArray one("object");
        const QByteArray list("list");
        const QByteArray nested("nested");
        const qint64 none = -1;
        QTest::newRow("object") << one << QByteArray(R"({"count":-7,"share":0.5,"name":"a"})") << qint64(-7) << QString();
        QTest::newRow("integral decimal") << one << QByteArray(R"({"count":2.0,"share":0,"name":"a"})") << qint64(2) << QString();
        QTest::newRow("beyond double precision") << one << QByteArray(R"({"count":9007199254740993,"share":0,"name":"a"})") << qint64(9007199254740993LL)
                                                 << QString();
        QTest::newRow("fraction") << one << QByteArray(R"({"count":1.5,"share":0,"name":"a"})") << none
                                  << R"(key "count": expected an integer, found a number with a fractional part)";
        QTest::newRow("number as text") << one << QByteArray(R"({"count":1,"share":0,"name":12})") << none
                                        << R"(key "name": expected a string, found a number)";
        QTest::newRow("null as text") << one << QByteArray(R"({"count":1,"share":0,"name":null})") << none << R"(key "name": expected a string, found null)";
        QTest::newRow("missing key") << one << QByteArray(R"({"count":1,"share":0})") << none << R"(key "name": expected a string, but the key is missing)";
        QTest::newRow("array for object") << one << QByteArray(R"([{"count":1,"share":0,"name":"a"}])") << none << "expected an object, found an array";
        QTest::newRow("list") << list << QByteArray(R"([{"count":1,"share":0,"name":"a"},{"count":2,"share":1,"name":"b"}])") << qint64(2) << QString();
        QTest::newRow("object for list") << list << QByteArray(R"({"count":1,"share":0,"name":"a"})") << none << "expected an array, found an object";
        QTest::newRow("element not an object") << list << QByteArray("[null]") << none << "element 0: expected an object, found null";
        QTest::newRow("bad later element") << list << QByteArray(R"([{"count":1,"share":0,"name":"a"},{"count":"2","share":1,"name":"b"}])") << none
                                           << R"(element 1: key "count": expected an integer, found a string)";
        QTest::newRow("invalid JSON list") << list << QByteArray(R"([{"count":)") << none << "invalid JSON: unterminated object at offset 10";
        QTest::newRow("inside object") << nested << QByteArray(R"({"first":{"count":1.5,"share":0},"rest":{}})") << none
                                       << R"(key "first": key "count": expected an integer, found a number with a fractional part)";
        QTest::newRow("inside array element")
            << nested << QByteArray(R"({"first":{"count":1,"share":0,"name":"a"},"rest":[{"count":1,"share":0,"name":"a"},{"count":1,"name":"b"}]})") << none
            << R"(key "rest": element 1: key "share": expected a number, but the key is missing)";
    }

    void decodesStrictly()
    {
        QFETCH(QByteArray, shape);
        QFETCH(QByteArray, body);
        QFETCH(qint64, count);
        QFETCH(QString, error);

        if (shape == "object") {
            const auto result = decodeObject<Sample>(body);
            QCOMPARE(result.error, error);
            QCOMPARE(result.ok() ? result.value->count : -1, count);
        } else if (shape == "list") {
            const auto result = decodeList<Sample>(body);
            QCOMPARE(result.error, error);
            QCOMPARE(result.ok() ? qint64(result.value->size()) : -1, count);
        } else {
            JsonReader reader(QJsonDocument::fromJson(body).object());
            reader.record<Sample>("first");
            reader.records<Sample>("rest");
            QCOMPARE(reader.error(), error);
        }
    }

    void everyRecordRoundTrips()
    {
        using L = LoginModel;
        QCOMPARE(decodeFault<L>("userid fullname phonenumber emailaddress dateofbirth gender registerdate scode messageresponse",
                                { &L::userid, &L::fullname, &L::phonenumber, &L::emailaddress, &L::dateofbirth, &L::gender, &L::registerdate, &L::scode,
                                  &L::messageresponse }),
                 QString());
        QCOMPARE(decodeFault<AlertModel>("id message", { &AlertModel::id, &AlertModel::message }), QString());
        using N = NotificationModel;
        QCOMPARE(
            decodeFault<N>("id userid topic message readmessage posteddate", { &N::id, &N::userid, &N::topic, &N::message, &N::readmessage, &N::posteddate }),
            QString());
        using M = ProfileMedModel;
        QCOMPARE(decodeFault<M>("id conditionstatus conditionname", { &M::id, &M::conditionstatus, &M::conditionname }), QString());
        using D = ProfileMedDetailsModel;
        QCOMPARE(decodeFault<D>("id userid conditionstatus conditionname emergencycontact phonenumber relationship weight height smokerstatus smoker "
                                "moredetails scode messageresponse",
                                { &D::id, &D::userid, &D::conditionstatus, &D::conditionname, &D::emergencycontact, &D::phonenumber, &D::relationship,
                                  &D::weight, &D::height, &D::smokerstatus, &D::smoker, &D::moredetails, &D::scode, &D::messageresponse }),
                 QString());
        using S = ProfileSubModel;
        QCOMPARE(decodeFault<S>("id type package status", { &S::id, &S::type, &S::package, &S::status }), QString());
    }

    // The readings are only ever read.
    void everyReadingDecodes()
    {
        using A = AirQualityData;
        QCOMPARE((decodeFault<A, true>("id aqi co no no2 o3 so2 pm25 pm10 nh3",
                                       { &A::id, &A::aqi, &A::co, &A::no, &A::no2, &A::o3, &A::so2, &A::pm25, &A::pm10, &A::nh3 })),
                 QString());
        using W = WeatherData;
        QCOMPARE((decodeFault<W, true>("id temp humid wind uv pollen", { &W::id, &W::temp, &W::humid, &W::wind, &W::uv, &W::pollen })), QString());
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

    void currentPollutionIsNumericAndRoundTrips()
    {
        const auto decoded = decodeObject<MapPollutantModel>(currentPollution("1606223802"));
        QVERIFY2(decoded.ok(), qPrintable(decoded.error));
        QCOMPARE(decoded.value->coord.lon, -0.1278);
        const AirQuality &reading = decoded.value->list.first();
        QCOMPARE(reading.main.aqi, 2);
        QCOMPARE(reading.components.pm2_5, 4.2);
        QCOMPARE(reading.dt, 1606223802);

        QCOMPARE(decoded.value->toJson(), QJsonDocument::fromJson(currentPollution("1606223802")).object());

        QVERIFY(decodeObject<MapPollutantModel>(currentPollution("1606223802.5")).error.contains(QLatin1String("\"dt\"")));
        QVERIFY(!decodeObject<MapPollutantModel>(currentPollution("1606223802", "pm25")).ok());
        QVERIFY(!decodeObject<MapPollutantModel>(QByteArray(R"({"coord":{"lon":"-0.1","lat":51},"list":[]})")).ok());
    }

    void historyEntriesAcceptEitherTimeForm()
    {
        const auto history = decodeObject<AQIResponse>(
            R"({"coord":[50,50],"list":[{"main":{"aqi":3},"components":{"co":1},"dt":1606482000},{"main":{"aqi":1},"dt":1606485600.5}]})");
        QVERIFY2(history.ok(), qPrintable(history.error));
        QCOMPARE(history.value->list.at(0).dt, 1606482000.0);
        const auto again = decodeObject<AQIResponse>(QJsonDocument(history.value->toJson()).toJson());
        QVERIFY(again.ok());
        QCOMPARE(again.value->list.size(), 2);
        QCOMPARE(again.value->list.at(1).dt, 1606485600.5);
        QCOMPARE(again.value->list.at(1).main.aqi, 1);

        QVERIFY(!decodeObject<AQIResponse>(R"({"list":[{"main":{"aqi":2.5},"dt":1}]})").ok());
        QVERIFY(!decodeObject<AQIResponse>(R"({"cod":401,"message":"Invalid API key."})").ok());
        QVERIFY(decodeObject<AQIResponse>(R"({"list":[]})").value->list.isEmpty());
    }
};

QTEST_GUILESS_MAIN(RecordsTest)
#include "tst_records.moc"
