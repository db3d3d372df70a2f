// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/JsonBody.h"

#include <QJsonParseError>
#include <QTest>

namespace
{
struct Item {
    QString name;
    qint64 size = 0;

    static DecodeResult<Item> fromJson(const QJsonObject &object)
    {
        JsonReader reader(object);
        Item item;
        item.name = reader.text("name");
        item.size = reader.integer("size");
        return reader.result(item);
    }
};

QString qtParseError(const QByteArray &body)
{
    QJsonParseError error;
    QJsonDocument::fromJson(body, &error);
    return QStringLiteral("%1 at offset %2").arg(error.errorString()).arg(error.offset);
}
} // namespace

class JsonBodyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodesList()
    {
        const auto result = decodeList<Item>(R"([{"name":"a","size":1},{"name":"b","size":2,"note":null}])");
        QVERIFY2(result.ok(), qPrintable(result.error));
        QCOMPARE(result.value->size(), 2);
        QCOMPARE(result.value->at(0).name, QStringLiteral("a"));
        QCOMPARE(result.value->at(1).size, qint64(2));
    }

    void emptyArrayIsEmptyList()
    {
        const auto result = decodeList<Item>(" [ ] ");
        QVERIFY2(result.ok(), qPrintable(result.error));
        QVERIFY(result.value->isEmpty());
    }

    void rejectsList_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("error");

        QTest::newRow("object where array belongs") << QByteArray(R"({"name":"a","size":1})") << "expected an array, found an object";
        QTest::newRow("element not an object") << QByteArray(R"([{"name":"a","size":1},[]])") << "element 1: expected an object, found an array";
        QTest::newRow("null element") << QByteArray(R"([null])") << "element 0: expected an object, found null";
        // One bad element must sink the whole answer: no partial list.
        QTest::newRow("bad later element") << QByteArray(R"([{"name":"a","size":1},{"name":"b","size":2},{"name":3,"size":2}])")
                                           << R"(element 2: key "name": expected a string, found a number)";
    }

    void rejectsList()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, error);

        const auto result = decodeList<Item>(body);
        QVERIFY(!result.value.has_value());
        QCOMPARE(result.error, error);
    }

    void decodesObject()
    {
        const auto result = decodeObject<Item>(R"({"size":9,"name":"z"})");
        QVERIFY2(result.ok(), qPrintable(result.error));
        QCOMPARE(result.value->name, QStringLiteral("z"));
        QCOMPARE(result.value->size, qint64(9));
    }

    void rejectsArrayWhereObjectBelongs()
    {
        const auto result = decodeObject<Item>(R"([{"name":"a","size":1}])");
        QVERIFY(!result.ok());
        QCOMPARE(result.error, QStringLiteral("expected an object, found an array"));
    }

    void invalidJsonCarriesQtsReason_data()
    {
        QTest::addColumn<QByteArray>("body");

        QTest::newRow("empty body") << QByteArray();
        QTest::newRow("truncated") << QByteArray(R"([{"name":)");
        QTest::newRow("html error page") << QByteArray("<html>502</html>");
        QTest::newRow("trailing comma") << QByteArray(R"([{"name":"a","size":1},])");
    }

    void invalidJsonCarriesQtsReason()
    {
        QFETCH(QByteArray, body);

        const QString expected = QStringLiteral("invalid JSON: ") + qtParseError(body);
        const auto list = decodeList<Item>(body);
        QVERIFY(!list.ok());
        QCOMPARE(list.error, expected);
        const auto single = decodeObject<Item>(body);
        QVERIFY(!single.ok());
        QCOMPARE(single.error, expected);
    }
};

QTEST_GUILESS_MAIN(JsonBodyTest)
#include "tst_jsonbody.moc"
