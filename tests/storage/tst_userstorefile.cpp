// SPDX-License-Identifier: GPL-3.0-or-later
#include "PrintedLines.h"
#include "RawDatabase.h"
#include "TestUsers.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

namespace
{
int fileMode(const QString &path)
{
    struct stat info {
    };
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return -1;
    return static_cast<int>(info.st_mode & 07777);
}

bool writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size();
}

// Restores the process's umask and HOME however a test ends.
struct EnvironmentGuard {
    mode_t savedMask = ::umask(022);
    QByteArray savedHome = qgetenv("HOME");
    EnvironmentGuard() { ::umask(savedMask); }
    ~EnvironmentGuard()
    {
        ::umask(savedMask);
        qputenv("HOME", savedHome);
    }
};
} // namespace

class TestUserStoreFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setApplicationName(QStringLiteral("tarnelo"));
    }

    void defaultStoreLivesInTheDataDirectory()
    {
        EnvironmentGuard guard;
        QTemporaryDir home;
        QVERIFY(home.isValid());
        qputenv("HOME", QFile::encodeName(home.path()));
        const QString dataDir = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        QVERIFY2(dataDir.startsWith(home.path() + QLatin1Char('/')), qPrintable(dataDir));
        QVERIFY(!QDir(dataDir).exists());

        const QString path = dataDir + QStringLiteral("/tarnelo_db.sqlite");
        const QStringList printed = printedBy([] { SQliteLogin store; });
        QCOMPARE(printed, QStringList({ QStringLiteral("Successfully opened connection to database at ") + path, QStringLiteral("Users table created.") }));
        QVERIFY(QFile::exists(path));
        QCOMPARE(fileMode(dataDir), 0700);
    }

    // Without a usable file the store behaves as an empty one that says why.
    void unopenableStoreIsEmptyAndSaysSo_data()
    {
        QTest::addColumn<bool>("viaDefaultLocation");
        QTest::newRow("path under a regular file") << false;
        QTest::newRow("data directory cannot be created") << true;
    }

    void unopenableStoreIsEmptyAndSaysSo()
    {
        QFETCH(bool, viaDefaultLocation);
        EnvironmentGuard guard;
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString blocker = dir.filePath(QStringLiteral("plain-file"));
        QVERIFY(writeFile(blocker, "not a directory"));
        qputenv("HOME", QFile::encodeName(blocker + QStringLiteral("/home")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Cannot create .*/plain-file/")));

        bool opened = true;
        QList<User> users { User {} };
        const QStringList printed = printedBy([&] {
            std::unique_ptr<SQliteLogin> store(viaDefaultLocation ? new SQliteLogin : new SQliteLogin(blocker + QStringLiteral("/tarnelo_db.sqlite")));
            opened = store->db;
            insertUser(*store, makeUser("1", "One"));
            users = store->readAll();
            updateUser(*store, makeUser("1", "One"));
            store->deleteAll();
        });
        QVERIFY(!opened);
        QVERIFY(users.isEmpty());
        QCOMPARE(printed,
                 lines({ "Unable to open database.", "CREATE TABLE statement could not be prepared. Error: database is not open",
                         "INSERT statement could not be prepared. Error: database is not open", "SELECT statement could not be prepared.",
                         "UPDATE statement could not be prepared.", "DELETE statement could not be prepared. Error: database is not open" }));
    }

    void damagedFileReportsSqliteErrors()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString path = dir.filePath(SQliteLogin::databaseFileName());
        QVERIFY(writeFile(path, QByteArray(4096, 'x')));

        QList<User> users { User {} };
        const QStringList printed = printedBy([&] {
            SQliteLogin store(path);
            store.deleteAll();
            users = store.readAll();
        });
        QVERIFY(users.isEmpty());
        QCOMPARE(printed,
                 QStringList({ QStringLiteral("Successfully opened connection to database at ") + path,
                               QStringLiteral("CREATE TABLE statement could not be prepared. Error: file is not a database"),
                               QStringLiteral("DELETE statement could not be prepared. Error: file is not a database"),
                               QStringLiteral("SELECT statement could not be prepared.") }));
    }

    // The store sets no busy timeout: while another connection holds the write
    // lock, its writes fail at once and say so.
    void anotherWriterLocksTheStoreOut()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString path = dir.filePath(SQliteLogin::databaseFileName());
        RawDatabase other(path);
        QVERIFY(other.exec("CREATE TABLE Other(x); BEGIN IMMEDIATE; INSERT INTO Other VALUES (1);"));

        std::unique_ptr<SQliteLogin> store;
        QCOMPARE(printedBy([&] { store = std::make_unique<SQliteLogin>(path); }),
                 QStringList({ QStringLiteral("Successfully opened connection to database at ") + path,
                               QStringLiteral("Could not create Users table. Error: database is locked") }));

        QVERIFY(other.exec("COMMIT;"));
        store = std::make_unique<SQliteLogin>(path);
        QVERIFY(other.exec("BEGIN IMMEDIATE; INSERT INTO UserTable VALUES (NULL, 'u', 'f', 'p', 'e', 'd', 'g', 'r');"));
        QList<User> users { User {} };
        const QStringList printed = printedBy([&] {
            insertUser(*store, makeUser("1", "One"));
            users = store->readAll();
        });
        QCOMPARE(printed, lines({ "Could not insert row. Error: database is locked" }));
        // Readers still see the last committed state.
        QVERIFY(users.isEmpty());
    }

    // Session data must not be readable by other local users, whatever umask the
    // app was started with and whoever created the file first.
    void fileIsPrivateToItsOwner_data()
    {
        QTest::addColumn<int>("mask");
        QTest::addColumn<int>("existingMode");
        QTest::newRow("fresh, umask 0") << 0 << -1;
        QTest::newRow("fresh, umask 0277") << 0277 << -1;
        QTest::newRow("existing 0666, umask 0") << 0 << 0666;
        QTest::newRow("existing 0400, umask 022") << 022 << 0400;
    }

    void fileIsPrivateToItsOwner()
    {
        QFETCH(int, mask);
        QFETCH(int, existingMode);
        EnvironmentGuard guard;
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString path = dir.filePath(SQliteLogin::databaseFileName());
        if (existingMode >= 0) {
            printedBy([&] {
                SQliteLogin earlier(path);
                insertUser(earlier, makeUser("1", "Earlier"));
            });
            QVERIFY(::chmod(QFile::encodeName(path).constData(), static_cast<mode_t>(existingMode)) == 0);
        }

        ::umask(static_cast<mode_t>(mask));
        QList<User> users;
        printedBy([&] {
            SQliteLogin store(path);
            insertUser(store, makeUser("2", "Now"));
            users = store.readAll();
        });
        QCOMPARE(fileMode(path), 0600);
        QCOMPARE(users.size(), existingMode >= 0 ? 2 : 1);
    }

    void nullValueInAForeignTableReadsAsEmpty()
    {
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString path = dir.filePath(SQliteLogin::databaseFileName());
        {
            RawDatabase raw(path);
            QVERIFY(raw.exec("CREATE TABLE UserTable(id INTEGER PRIMARY KEY, userid, fullname, phonenumber, emailaddress, dateofbirth, gender, registerdate);"
                             "INSERT INTO UserTable VALUES (NULL, '5', NULL, 'p', 'e', 'd', 'g', 'r');"));
        }
        SQliteLogin store(path);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("fullname.*NULL")));
        const QList<User> users = store.readAll();
        QCOMPARE(users.size(), 1);
        QCOMPARE(users[0].userid, QStringLiteral("5"));
        QVERIFY(users[0].fullname.isEmpty());
        QCOMPARE(users[0].registerdate, QStringLiteral("r"));
    }
};

QTEST_GUILESS_MAIN(TestUserStoreFile)
#include "tst_userstorefile.moc"
