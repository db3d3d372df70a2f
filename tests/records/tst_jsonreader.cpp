// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/JsonBody.h"

#include <QTest>

namespace
{
// A record of the test's own, so the reader's rules and error paths are checked
// apart from any real record.
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
} // namespace

class JsonReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsStrictly_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QVariant>("expected");
        QTest::addColumn<QString>("error");

        const QVariant none;
        QTest::newRow("text") << QByteArray(R"({"v":"12"})") << "text" << QVariant(QStringLiteral("12")) << QString();
        QTest::newRow("number as text") << QByteArray(R"({"v":12})") << "text" << none << R"(key "v": expected a string, found a number)";
        QTest::newRow("null as text") << QByteArray(R"({"v":null})") << "text" << none << R"(key "v": expected a string, found null)";
        QTest::newRow("missing key") << QByteArray(R"({"w":"12"})") << "text" << none << R"(key "v": expected a string, but the key is missing)";
        QTest::newRow("integer") << QByteArray(R"({"v":-7})") << "integer" << QVariant(qint64(-7)) << QString();
        QTest::newRow("integral decimal") << QByteArray(R"({"v":2.0})") << "integer" << QVariant(qint64(2)) << QString();
        QTest::newRow("beyond double precision") << QByteArray(R"({"v":9007199254740993})") << "integer" << QVariant(qint64(9007199254740993LL)) << QString();
        QTest::newRow("fraction") << QByteArray(R"({"v":1.5})") << "integer" << none
                                  << R"(key "v": expected an integer, found a number with a fractional part)";
        QTest::newRow("integer as double") << QByteArray(R"({"v":3})") << "number" << QVariant(3.0) << QString();
        QTest::newRow("object where array belongs") << QByteArray(R"({"v":{}})") << "array" << none << R"(key "v": expected an array, found an object)";
        QTest::newRow("array where object belongs") << QByteArray(R"({"v":[]})") << "object" << none << R"(key "v": expected an object, found an array)";
    }

    void readsStrictly()
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
        else if (kind == QLatin1String("number"))
            got = reader.number("v");
        else if (kind == QLatin1String("array"))
            reader.array("v");
        else
            reader.object("v");

        QCOMPARE(reader.error(), error);
        if (error.isEmpty())
            QCOMPARE(got, expected);
    }

    void decodesNestedRecords_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");

        QTest::newRow("valid") << QByteArray(R"({"first":{"count":3,"share":0.5},"rest":[{"count":-1,"share":2},{"count":4,"share":1e-3}],"x":null})")
                               << QString();
        // Every field is read before the outcome is asked for; the first error wins.
        QTest::newRow("inside object") << QByteArray(R"({"first":{"count":1.5,"share":0},"rest":{}})")
                                       << R"(key "first": key "count": expected an integer, found a number with a fractional part)";
        QTest::newRow("inside array element") << QByteArray(R"({"first":{"count":1,"share":0},"rest":[{"count":1,"share":0},{"count":1}]})")
                                              << R"(key "rest": element 1: key "share": expected a number, but the key is missing)";
    }

    void decodesNestedRecords()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, error);

        JsonReader reader(QJsonDocument::fromJson(json).object());
        const Sample first = reader.record<Sample>("first");
        const QVector<Sample> rest = reader.records<Sample>("rest");
        QCOMPARE(reader.error(), error);
        if (error.isEmpty()) {
            QCOMPARE(first.count, qint64(3));
            QCOMPARE(first.share, 0.5);
            QCOMPARE(rest.size(), 2);
            QCOMPARE(rest.at(0).count, qint64(-1));
            QCOMPARE(rest.at(1).share, 0.001);
        }
    }

    // Whole answer bodies: a list must be an array, one record an object, and
    // one bad element sinks the whole list.
    void decodesBodies_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("asList");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("error");

        QTest::newRow("list") << QByteArray(R"([{"count":1,"share":0},{"count":2,"share":1}])") << true << 2 << QString();
        QTest::newRow("empty list") << QByteArray(" [ ] ") << true << 0 << QString();
        QTest::newRow("object") << QByteArray(R"({"count":1,"share":0})") << false << 1 << QString();
        QTest::newRow("object for list") << QByteArray(R"({"count":1,"share":0})") << true << -1 << "expected an array, found an object";
        QTest::newRow("array for object") << QByteArray(R"([{"count":1,"share":0}])") << false << -1 << "expected an object, found an array";
        QTest::newRow("element not an object") << QByteArray("[null]") << true << -1 << "element 0: expected an object, found null";
        QTest::newRow("bad later element") << QByteArray(R"([{"count":1,"share":0},{"count":"2","share":1}])") << true << -1
                                           << R"(element 1: key "count": expected an integer, found a string)";
        QTest::newRow("invalid JSON list") << QByteArray(R"([{"count":)") << true << -1 << "invalid JSON: unterminated object at offset 10";
        QTest::newRow("invalid JSON object") << QByteArray("<html>502</html>") << false << -1 << "invalid JSON: illegal value at offset 1";
    }

    void decodesBodies()
    {
        QFETCH(QByteArray, body);
        QFETCH(bool, asList);
        QFETCH(int, count);
        QFETCH(QString, error);

        if (asList) {
            const auto result = decodeList<Sample>(body);
            QCOMPARE(result.error, error);
            QCOMPARE(result.ok() ? result.value->size() : -1, count);
        } else {
            const auto result = decodeObject<Sample>(body);
            QCOMPARE(result.error, error);
            QCOMPARE(result.ok() ? int(result.value->count) : -1, count);
        }
    }
};

QTEST_GUILESS_MAIN(JsonReaderTest)
#include "tst_jsonreader.moc"
