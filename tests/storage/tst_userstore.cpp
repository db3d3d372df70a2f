// SPDX-License-Identifier: GPL-3.0-or-later
#include "PrintedLines.h"
#include "RawDatabase.h"
#include "TestUsers.h"

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class TestUserStore : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;

    QStringList constructionLines() const
    {
        return { QStringLiteral("Successfully opened connection to database at ") + m_path, QStringLiteral("Users table created.") };
    }

private Q_SLOTS:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        m_path = m_dir->filePath(SQliteLogin::databaseFileName());
    }

    void freshInstallStartsSignedOut()
    {
        std::unique_ptr<SQliteLogin> store;
        QList<User> users { makeUser("stale", "Stale") };
        const QStringList printed = printedBy([&] {
            store = std::make_unique<SQliteLogin>(m_path);
            users = store->readAll();
        });
        QCOMPARE(printed, constructionLines());
        QVERIFY(store->db);
        QVERIFY(users.isEmpty());
    }

    void connectionsShareTheFile()
    {
        SQliteLogin first(m_path);
        insertUser(first, makeUser("1", "First"));

        std::unique_ptr<SQliteLogin> second;
        QCOMPARE(printedBy([&] { second = std::make_unique<SQliteLogin>(m_path); }), constructionLines());
        QCOMPARE(second->readAll(), QList<User>({ makeUser("1", "First") }));

        insertUser(*second, makeUser("2", "Second"));
        QCOMPARE(first.readAll(), QList<User>({ makeUser("1", "First"), makeUser("2", "Second") }));
    }

    void insertsKeepInsertionOrder()
    {
        // Sorting these by userid as text or as a number, or by name, would
        // each give a different order.
        const QList<User> users { makeUser("40", "Mia"), makeUser("5", "Amy"), makeUser("300", "Zed") };
        SQliteLogin store(m_path);
        const QStringList printed = printedBy([&] {
            for (const User &user : users)
                insertUser(store, user);
        });
        QCOMPARE(printed, lines({ "Successfully inserted row.", "Successfully inserted row.", "Successfully inserted row." }));
        QCOMPARE(store.readAll(), users);
    }

    void updateRewritesEveryRowButKeepsIdentity()
    {
        SQliteLogin store(m_path);
        insertUser(store, makeUser("1", "One"));
        User other = makeUser("2", "Two");
        other.registerdate = QStringLiteral("2023-06-30");
        insertUser(store, other);

        const QStringList printed = printedBy([&] {
            store.update(QStringLiteral("New Name"), QStringLiteral("555-0100"), QStringLiteral("new@example.org"), QStringLiteral("2000-12-31"),
                         QStringLiteral("1"));
        });
        QCOMPARE(printed, lines({ "Successfully updated row." }));

        const QList<User> users = store.readAll();
        QCOMPARE(users.size(), 2);
        const QStringList keptIdentity[] = { { QStringLiteral("1"), QStringLiteral("2024-01-15") }, { QStringLiteral("2"), QStringLiteral("2023-06-30") } };
        for (int i = 0; i < 2; ++i) {
            const User expected { keptIdentity[i][0],           QStringLiteral("New Name"), QStringLiteral("555-0100"), QStringLiteral("new@example.org"),
                                  QStringLiteral("2000-12-31"), QStringLiteral("1"),        keptIdentity[i][1] };
            QCOMPARE(users[i], expected);
        }
    }

    void deleteAllSignsOut_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("empty table") << 0;
        QTest::newRow("two rows") << 2;
    }

    void deleteAllSignsOut()
    {
        QFETCH(int, rows);
        SQliteLogin store(m_path);
        for (int i = 0; i < rows; ++i)
            insertUser(store, makeUser("7", "Seven"));

        QCOMPARE(printedBy([&] { store.deleteAll(); }), lines({ "Successfully truncated Users table." }));
        QVERIFY(store.readAll().isEmpty());

        // Signing in again after logout works on the emptied table.
        insertUser(store, makeUser("8", "Eight"));
        QCOMPARE(store.readAll(), QList<User>({ makeUser("8", "Eight") }));
    }

    void textIsStoredUnchanged_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << QStringLiteral("O'Brien \"Bob\" `x`");
        QTest::newRow("sql") << QStringLiteral("x'); DROP TABLE UserTable; --");
        QTest::newRow("placeholders") << QStringLiteral("? ?1 :name %s %n");
        QTest::newRow("non-ascii") << QStringLiteral("Zoë Ångström Ωμέγα 北京 😀");
        QTest::newRow("whitespace") << QStringLiteral("  two\nlines\t ");
        QTest::newRow("empty") << QString(QLatin1String(""));
        // Not SQL NULL, which the schema would refuse.
        QTest::newRow("null string") << QString();
    }

    void textIsStoredUnchanged()
    {
        QFETCH(QString, text);
        SQliteLogin store(m_path);
        QList<User> inserted;
        QList<User> updated;
        const QStringList printed = printedBy([&] {
            store.insert(text, text, text, text, text, text, text);
            inserted = store.readAll();
            store.deleteAll();
            insertUser(store, makeUser("9", "Nine"));
            store.update(text, text, text, text, text);
            updated = store.readAll();
        });
        QCOMPARE(printed,
                 lines({ "Successfully inserted row.", "Successfully truncated Users table.", "Successfully inserted row.", "Successfully updated row." }));
        QCOMPARE(inserted, QList<User>({ User { text, text, text, text, text, text, text } }));
        const User base = makeUser("9", "Nine");
        QCOMPARE(updated, QList<User>({ User { base.userid, text, text, text, text, text, base.registerdate } }));
    }

    // A statement that prepares but fails when run reports its line and leaves
    // the rows alone.
    void refusedWritesReportAndKeepRows_data()
    {
        QTest::addColumn<QByteArray>("event");
        QTest::addColumn<QString>("expected");
        QTest::newRow("insert") << QByteArray("INSERT") << QStringLiteral("Could not insert row. Error: refused by trigger");
        QTest::newRow("update") << QByteArray("UPDATE") << QStringLiteral("Could not update row.");
        QTest::newRow("delete") << QByteArray("DELETE") << QStringLiteral("Could not truncate Users table. Error: refused by trigger");
    }

    void refusedWritesReportAndKeepRows()
    {
        QFETCH(QByteArray, event);
        QFETCH(QString, expected);
        SQliteLogin store(m_path);
        insertUser(store, makeUser("1", "One"));
        RawDatabase raw(m_path);
        QVERIFY(raw.exec("CREATE TRIGGER refuse BEFORE " + event + " ON UserTable BEGIN SELECT RAISE(ABORT, 'refused by trigger'); END;"));

        const QStringList printed = printedBy([&] {
            if (event == "INSERT")
                insertUser(store, makeUser("2", "Two"));
            else if (event == "UPDATE")
                updateUser(store, makeUser("1", "Changed"));
            else
                store.deleteAll();
        });
        QCOMPARE(printed, QStringList({ expected }));
        QCOMPARE(store.readAll(), QList<User>({ makeUser("1", "One") }));
    }
};

QTEST_GUILESS_MAIN(TestUserStore)
#include "tst_userstore.moc"
