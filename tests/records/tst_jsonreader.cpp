// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/JsonReader.h"

#include <QJsonDocument>
#include <QTest>

namespace
{
QJsonObject parseObject(const char *json)
{
    return QJsonDocument::fromJson(QByteArray(json)).object();
}

// Small nested records, so nesting and error paths can be checked without
// depending on any real record.
struct Sample {
    qint64 count = 0;
    double share = 0;

    static DecodeResult<Sample> fromJson(const QJsonObject &object)
    {
        JsonReader reader(object);
        Sample s;
        s.count = reader.integer("count");
        s.share = reader.number("share");
        return reader.result(s);
    }
};

struct Holder {
    Sample first;
    QVector<Sample> rest;

    static DecodeResult<Holder> fromJson(const QJsonObject &object)
    {
        JsonReader reader(object);
        Holder h;
        h.first = reader.record<Sample>("first");
        h.rest = reader.records<Sample>("rest");
        return reader.result(h);
    }
};
} // namespace

class JsonReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsScalar_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QVariant>("expected");
        QTest::addColumn<QString>("error");

        const QVariant none;
        QTest::newRow("text") << QByteArray(R"({"v":"12"})") << "text" << QVariant(QStringLiteral("12")) << QString();
        QTest::newRow("empty text") << QByteArray(R"({"v":""})") << "text" << QVariant(QString()) << QString();
        QTest::newRow("number as text") << QByteArray(R"({"v":12})") << "text" << none << R"(key "v": expected a string, found a number)";
        QTest::newRow("null as text") << QByteArray(R"({"v":null})") << "text" << none << R"(key "v": expected a string, found null)";
        QTest::newRow("missing text") << QByteArray(R"({"w":"12"})") << "text" << none << R"(key "v": expected a string, but the key is missing)";
        QTest::newRow("key case matters") << QByteArray(R"({"V":"12"})") << "text" << none << R"(key "v": expected a string, but the key is missing)";

        QTest::newRow("integer") << QByteArray(R"({"v":2})") << "integer" << QVariant(qint64(2)) << QString();
        QTest::newRow("integral decimal") << QByteArray(R"({"v":2.0})") << "integer" << QVariant(qint64(2)) << QString();
        QTest::newRow("exponent integer") << QByteArray(R"({"v":1e2})") << "integer" << QVariant(qint64(100)) << QString();
        QTest::newRow("beyond double precision") << QByteArray(R"({"v":9007199254740993})") << "integer" << QVariant(qint64(9007199254740993LL)) << QString();
        QTest::newRow("largest") << QByteArray(R"({"v":9223372036854775807})") << "integer" << QVariant(std::numeric_limits<qint64>::max()) << QString();
        QTest::newRow("smallest") << QByteArray(R"({"v":-9223372036854775808})") << "integer" << QVariant(std::numeric_limits<qint64>::min()) << QString();
        QTest::newRow("fraction") << QByteArray(R"({"v":1.5})") << "integer" << none
                                  << R"(key "v": expected an integer, found a number with a fractional part)";
        QTest::newRow("just past range") << QByteArray(R"({"v":9223372036854775808})") << "integer" << none
                                         << R"(key "v": expected an integer, found a number outside the 64-bit range)";
        QTest::newRow("far past range") << QByteArray(R"({"v":-1e300})") << "integer" << none
                                        << R"(key "v": expected an integer, found a number outside the 64-bit range)";
        QTest::newRow("text as integer") << QByteArray(R"({"v":"2"})") << "integer" << none << R"(key "v": expected an integer, found a string)";

        QTest::newRow("double") << QByteArray(R"({"v":-0.25})") << "number" << QVariant(-0.25) << QString();
        QTest::newRow("integer as double") << QByteArray(R"({"v":3})") << "number" << QVariant(3.0) << QString();
        QTest::newRow("text as double") << QByteArray(R"({"v":"1.5"})") << "number" << none << R"(key "v": expected a number, found a string)";
        QTest::newRow("missing double") << QByteArray(R"({})") << "number" << none << R"(key "v": expected a number, but the key is missing)";
    }

    void readsScalar()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, kind);
        QFETCH(QVariant, expected);
        QFETCH(QString, error);

        JsonReader reader(QJsonDocument::fromJson(json).object());
        QVariant got;
        if (kind == QLatin1String("text"))
            got = reader.text("v");
        else if (kind == QLatin1String("integer"))
            got = reader.integer("v");
        else
            got = reader.number("v");

        QCOMPARE(reader.error(), error);
        QCOMPARE(reader.ok(), error.isEmpty());
        if (reader.ok())
            QCOMPARE(got, expected);
    }

    void readsContainers_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("wantArray");
        QTest::addColumn<QString>("error");

        QTest::newRow("object") << QByteArray(R"({"v":{"a":"b"}})") << false << QString();
        QTest::newRow("empty array") << QByteArray(R"({"v":[]})") << true << QString();
        QTest::newRow("array where object belongs") << QByteArray(R"({"v":[]})") << false << R"(key "v": expected an object, found an array)";
        QTest::newRow("object where array belongs") << QByteArray(R"({"v":{}})") << true << R"(key "v": expected an array, found an object)";
        QTest::newRow("null object") << QByteArray(R"({"v":null})") << false << R"(key "v": expected an object, found null)";
        QTest::newRow("missing array") << QByteArray(R"({})") << true << R"(key "v": expected an array, but the key is missing)";
    }

    void readsContainers()
    {
        QFETCH(QByteArray, json);
        QFETCH(bool, wantArray);
        QFETCH(QString, error);

        const QJsonObject source = QJsonDocument::fromJson(json).object();
        JsonReader reader(source);
        if (wantArray) {
            const QJsonArray got = reader.array("v");
            if (error.isEmpty())
                QCOMPARE(got, source.value(QLatin1String("v")).toArray());
        } else {
            const QJsonObject got = reader.object("v");
            if (error.isEmpty())
                QCOMPARE(got, source.value(QLatin1String("v")).toObject());
        }
        QCOMPARE(reader.error(), error);
    }

    void ignoresUnknownMembers()
    {
        JsonReader reader(parseObject(R"({"extra":null,"name":"x","more":[1,2]})"));
        QCOMPARE(reader.text("name"), QStringLiteral("x"));
        QVERIFY(reader.ok());
    }

    // A record reads all its fields before looking at the outcome, so the error
    // it reports must be the first one, not overwritten by later reads.
    void keepsFirstError()
    {
        JsonReader reader(parseObject(R"({"a":1,"b":null,"c":"fine"})"));
        reader.text("a");
        reader.text("b");
        QCOMPARE(reader.text("c"), QString());
        QCOMPARE(reader.error(), QStringLiteral(R"(key "a": expected a string, found a number)"));
        const DecodeResult<int> result = reader.result(5);
        QVERIFY(!result.ok());
        QCOMPARE(result.error, reader.error());
    }

    void decodesNestedRecords()
    {
        const DecodeResult<Holder> result
            = Holder::fromJson(parseObject(R"({"first":{"count":3,"share":0.5},"rest":[{"count":-1,"share":2},{"count":4,"share":1e-3}]})"));
        QVERIFY2(result.ok(), qPrintable(result.error));
        QCOMPARE(result.value->first.count, qint64(3));
        QCOMPARE(result.value->first.share, 0.5);
        QCOMPARE(result.value->rest.size(), 2);
        QCOMPARE(result.value->rest.at(0).count, qint64(-1));
        QCOMPARE(result.value->rest.at(0).share, 2.0);
        QCOMPARE(result.value->rest.at(1).count, qint64(4));
        QCOMPARE(result.value->rest.at(1).share, 0.001);
    }

    void nestedErrorsNameTheirPath_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");

        QTest::newRow("inside object") << QByteArray(R"({"first":{"count":1.5,"share":0},"rest":[]})")
                                       << R"(key "first": key "count": expected an integer, found a number with a fractional part)";
        QTest::newRow("inside array element") << QByteArray(R"({"first":{"count":1,"share":0},"rest":[{"count":1,"share":0},{"count":1}]})")
                                              << R"(key "rest": element 1: key "share": expected a number, but the key is missing)";
        QTest::newRow("element not an object") << QByteArray(R"({"first":{"count":1,"share":0},"rest":["x"]})")
                                               << R"(key "rest": element 0: expected an object, found a string)";
        QTest::newRow("object where array belongs") << QByteArray(R"({"first":{"count":1,"share":0},"rest":{"count":1,"share":0}})")
                                                    << R"(key "rest": expected an array, found an object)";
        QTest::newRow("array where object belongs") << QByteArray(R"({"first":[],"rest":[]})") << R"(key "first": expected an object, found an array)";
    }

    void nestedErrorsNameTheirPath()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, error);

        const DecodeResult<Holder> result = Holder::fromJson(QJsonDocument::fromJson(json).object());
        QVERIFY(!result.ok());
        QCOMPARE(result.error, error);
    }
};

QTEST_GUILESS_MAIN(JsonReaderTest)
#include "tst_jsonreader.moc"
