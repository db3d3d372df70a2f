// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/StdoutCapture.h"
#include "storage/SQliteLogin.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sqlite3.h>
#include <sys/stat.h>

namespace
{
// The console lines an action printed. Checks belong outside the action: while
// standard output is captured, a failing check's report would be captured too.
template<typename Action> QStringList printedBy(Action &&action)
{
    StdoutCapture capture;
    action();
    return capture.takeLines();
}

// A user from its seven fields in column order, separated by '|'.
User user(const char *fields)
{
    const QStringList f = QString::fromUtf8(fields).split(QLatin1Char('|'));
    return User { f.value(0), f.value(1), f.value(2), f.value(3), f.value(4), f.value(5), f.value(6) };
}

void insertUser(SQliteLogin &store, const User &u)
{
    store.insert(u.userid, u.fullname, u.phonenumber, u.emailaddress, u.dateofbirth, u.gender, u.registerdate);
}

int fileMode(const QString &path)
{
    struct stat info {
    };
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

QStringList openedLines(const QString &path)
{
    return { QStringLiteral("Successfully opened connection to database at ") + path, QStringLiteral("Users table created.") };
}
} // namespace

class UserStoreTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setApplicationName(QStringLiteral("tarnelo"));
    }

    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        m_path = m_dir->filePath(SQliteLogin::databaseFileName());
    }

    // A fresh install is signed out; rows written then outlive the connection
    // and come back in insertion order.
    void freshInstallThenReopen()
    {
        QList<User> read { user("stale") };
        QCOMPARE(printedBy([&] { read = SQliteLogin(m_path).readAll(); }), openedLines(m_path));
        QVERIFY(read.isEmpty());

        // Sorting by userid as text, or by name, would reverse these.
        const QList<User> users { user("5|Zed|0712|z@example.org|1990-04-01|2|2024-01-15"), user("40|Amy|0713|a@example.org|1991-05-02|1|2024-02-16") };
        const QStringList printed = printedBy([&] {
            SQliteLogin first(m_path);
            for (const User &u : users)
                insertUser(first, u);
            read = SQliteLogin(m_path).readAll();
        });
        QCOMPARE(printed.mid(2),
                 QStringList({ QStringLiteral("Successfully inserted row."), QStringLiteral("Successfully inserted row.") }) + openedLines(m_path));
        QCOMPARE(read, users);
    }

    void updateRewritesEveryRowButKeepsIdentity()
    {
        SQliteLogin store(m_path);
        insertUser(store, user("1|One|0711|one@example.org|1990-01-01|1|2024-01-15"));
        insertUser(store, user("2|Two|0722|two@example.org|1992-02-02|2|2023-06-30"));
        const User u = user("|New Name|555-0100|new@example.org|2000-12-31|1|");
        QCOMPARE(printedBy([&] { store.update(u.fullname, u.phonenumber, u.emailaddress, u.dateofbirth, u.gender); }),
                 QStringList { QStringLiteral("Successfully updated row.") });
        QCOMPARE(store.readAll(),
                 QList<User>({ user("1|New Name|555-0100|new@example.org|2000-12-31|1|2024-01-15"),
                               user("2|New Name|555-0100|new@example.org|2000-12-31|1|2023-06-30") }));
    }

    void deleteAllEmptiesTheTable()
    {
        SQliteLogin store(m_path);
        QCOMPARE(printedBy([&] { store.deleteAll(); }), QStringList { QStringLiteral("Successfully truncated Users table.") });
        insertUser(store, user("1|One"));
        store.deleteAll();
        QVERIFY(store.readAll().isEmpty());
    }

    void textIsStoredUnchanged_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << QStringLiteral("O'Brien \"Bob\"");
        QTest::newRow("sql") << QStringLiteral("x'); DROP TABLE UserTable; --");
        QTest::newRow("non-ascii") << QStringLiteral("Zoë Ωμέγα 北京 😀");
        // Empty text, not SQL NULL, which the schema would refuse.
        QTest::newRow("null string") << QString();
    }

    void textIsStoredUnchanged()
    {
        QFETCH(QString, text);
        SQliteLogin store(m_path);
        store.insert(text, text, text, text, text, text, text);
        store.update(text, text, text, text, text);
        QCOMPARE(store.readAll(), QList<User>({ User { text, text, text, text, text, text, text } }));
    }

    // Without a usable file the store behaves as an empty one that says why.
    void unopenableStoreIsEmptyAndSaysSo()
    {
        QFile blocker(m_dir->filePath(QStringLiteral("plain-file")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Cannot create .*/plain-file/")));
        QList<User> users { User {} };
        const QStringList printed = printedBy([&] {
            SQliteLogin store(blocker.fileName() + QStringLiteral("/tarnelo_db.sqlite"));
            insertUser(store, user("1|One"));
            users = store.readAll();
            store.update(QString(), QString(), QString(), QString(), QString());
            store.deleteAll();
        });
        QVERIFY(users.isEmpty());
        const QString notOpen = QStringLiteral(" statement could not be prepared. Error: database is not open");
        QCOMPARE(printed,
                 QStringList({ QStringLiteral("Unable to open database."), QStringLiteral("CREATE TABLE") + notOpen, QStringLiteral("INSERT") + notOpen,
                               QStringLiteral("SELECT statement could not be prepared."), QStringLiteral("UPDATE statement could not be prepared."),
                               QStringLiteral("DELETE") + notOpen }));
    }

    // Session data must not be readable by other local users, whatever the
    // umask and whoever created the file first.
    void fileIsPrivateToItsOwner()
    {
        const QString older = m_dir->filePath(QStringLiteral("older.sqlite"));
        const mode_t savedMask = ::umask(0);
        QFile(older).open(QIODevice::WriteOnly);
        const int olderMode = fileMode(older);
        printedBy([&] {
            SQliteLogin fresh(m_path);
            SQliteLogin existing(older);
        });
        ::umask(savedMask);
        QCOMPARE(olderMode, 0666); // created, and as wide as the umask allows
        QCOMPARE(fileMode(m_path), 0600);
        QCOMPARE(fileMode(older), 0600);
    }

    void defaultStoreLivesInTheDataDirectory()
    {
        QTemporaryDir home;
        QVERIFY(home.isValid());
        const QByteArray savedHome = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(home.path()));
        const QString dataDir = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        // Left wide open by an earlier run or another tool.
        QVERIFY(QDir().mkpath(dataDir));
        QVERIFY(QFile::setPermissions(dataDir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
        const QStringList printed = printedBy([] { SQliteLogin store; });
        qputenv("HOME", savedHome);

        QVERIFY2(dataDir.startsWith(home.path() + QLatin1Char('/')), qPrintable(dataDir));
        QCOMPARE(printed, openedLines(dataDir + QStringLiteral("/tarnelo_db.sqlite")));
        QVERIFY(QFile::exists(dataDir + QStringLiteral("/tarnelo_db.sqlite")));
        QCOMPARE(fileMode(dataDir), 0700);
    }

    void nullValueInAForeignTableReadsAsEmpty()
    {
        SQliteLogin store(m_path);
        QCOMPARE(sqlite3_exec(store.db,
                              "DROP TABLE UserTable;"
                              "CREATE TABLE UserTable(id INTEGER PRIMARY KEY, userid, fullname, phonenumber, emailaddress, dateofbirth, gender, registerdate);"
                              "INSERT INTO UserTable VALUES (NULL, '5', NULL, 'p', 'e', 'd', 'g', 'r');",
                              nullptr, nullptr, nullptr),
                 SQLITE_OK);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("fullname.*NULL")));
        QCOMPARE(store.readAll(), QList<User> { user("5||p|e|d|g|r") });
    }
};

QTEST_GUILESS_MAIN(UserStoreTest)
#include "tst_userstore.moc"
