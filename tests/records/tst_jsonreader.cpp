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
        QTest::addColumn<bool>("asInteger");
        QTest::addColumn<QVariant>("expected");
        QTest::addColumn<QString>("error");

        const QVariant none;
        QTest::newRow("text") << QByteArray(R"({"v":"12"})") << false << QVariant(QStringLiteral("12")) << QString();
        QTest::newRow("number as text") << QByteArray(R"({"v":12})") << false << none << R"(key "v": expected a string, found a number)";
        QTest::newRow("null as text") << QByteArray(R"({"v":null})") << false << none << R"(key "v": expected a string, found null)";
        QTest::newRow("missing key") << QByteArray(R"({"w":"12"})") << false << none << R"(key "v": expected a string, but the key is missing)";
        QTest::newRow("integer") << QByteArray(R"({"v":-7})") << true << QVariant(qint64(-7)) << QString();
        QTest::newRow("integral decimal") << QByteArray(R"({"v":2.0})") << true << QVariant(qint64(2)) << QString();
        QTest::newRow("beyond double precision") << QByteArray(R"({"v":9007199254740993})") << true << QVariant(qint64(9007199254740993LL)) << QString();
        QTest::newRow("fraction") << QByteArray(R"({"v":1.5})") << true << none << R"(key "v": expected an integer, found a number with a fractional part)";
    }

    void readsStrictly()
    {
        QFETCH(QByteArray, json);
        QFETCH(bool, asInteger);
        QFETCH(QVariant, expected);
        QFETCH(QString, error);

        JsonReader reader(QJsonDocument::fromJson(json).object());
        const QVariant got = asInteger ? QVariant(reader.integer("v")) : QVariant(reader.text("v"));
        QCOMPARE(reader.error(), error);
        if (error.isEmpty())
            QCOMPARE(got, expected);
    }

    void nestedErrorsSayWhere_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");

        // Every field is read before the outcome is asked for; the first error wins.
        QTest::newRow("inside object") << QByteArray(R"({"first":{"count":1.5,"share":0},"rest":{}})")
                                       << R"(key "first": key "count": expected an integer, found a number with a fractional part)";
        QTest::newRow("inside array element") << QByteArray(R"({"first":{"count":1,"share":0},"rest":[{"count":1,"share":0},{"count":1}]})")
                                              << R"(key "rest": element 1: key "share": expected a number, but the key is missing)";
    }

    void nestedErrorsSayWhere()
    {
        QFETCH(QByteArray, json);
        QFETCH(QString, error);

        JsonReader reader(QJsonDocument::fromJson(json).object());
        reader.record<Sample>("first");
        reader.records<Sample>("rest");
        QCOMPARE(reader.error(), error);
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
        QTest::newRow("object") << QByteArray(R"({"count":1,"share":0})") << false << 1 << QString();
        QTest::newRow("object for list") << QByteArray(R"({"count":1,"share":0})") << true << -1 << "expected an array, found an object";
        QTest::newRow("array for object") << QByteArray(R"([{"count":1,"share":0}])") << false << -1 << "expected an object, found an array";
        QTest::newRow("element not an object") << QByteArray("[null]") << true << -1 << "element 0: expected an object, found null";
        QTest::newRow("bad later element") << QByteArray(R"([{"count":1,"share":0},{"count":"2","share":1}])") << true << -1
                                           << R"(element 1: key "count": expected an integer, found a string)";
        QTest::newRow("invalid JSON list") << QByteArray(R"([{"count":)") << true << -1 << "invalid JSON: unterminated object at offset 10";
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
