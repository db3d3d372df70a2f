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
    // and come back in insertion order, their text unchanged.
    void freshInstallThenReopen()
    {
        QList<User> read { user("stale") };
        QCOMPARE(printedBy([&] { read = SQliteLogin(m_path).readAll(); }), openedLines(m_path));
        QVERIFY(read.isEmpty());

        // Sorting by userid as text, or by name, would reverse these. The null
        // strings of "Amy" must be stored as empty text, not SQL NULL, which the schema refuses.
        const QList<User> users { user("5|Zoë Ωμέγα 北京 😀|0712|x'); DROP TABLE UserTable; --|1990-04-01|2|2024-01-15"), user("40|Amy") };
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

    void updateRewritesEveryRowButKeepsIdentityAndDeleteAllEmpties()
    {
        SQliteLogin store(m_path);
        insertUser(store, user("1|One|0711|one@example.org|1990-01-01|1|2024-01-15"));
        insertUser(store, user("2|Two|0722|two@example.org|1992-02-02|2|2023-06-30"));
        const User u = user("|New Name|555-0100|O'Brien \"Bob\"|2000-12-31");
        QCOMPARE(printedBy([&] { store.update(u.fullname, u.phonenumber, u.emailaddress, u.dateofbirth, u.gender); }),
                 QStringList { QStringLiteral("Successfully updated row.") });
        QCOMPARE(store.readAll(),
                 QList<User>({ user("1|New Name|555-0100|O'Brien \"Bob\"|2000-12-31||2024-01-15"),
                               user("2|New Name|555-0100|O'Brien \"Bob\"|2000-12-31||2023-06-30") }));
        QCOMPARE(printedBy([&] { store.deleteAll(); }), QStringList { QStringLiteral("Successfully truncated Users table.") });
        QVERIFY(store.readAll().isEmpty());
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

    // Session data must not be readable by other local users, whatever an
    // earlier run or another tool left behind.
    void defaultStoreIsPrivateToItsOwner()
    {
        QTemporaryDir home;
        QVERIFY(home.isValid());
        const QByteArray savedHome = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(home.path()));
        const QString dataDir = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        const QString file = dataDir + QStringLiteral("/tarnelo_db.sqlite");
        const QFile::Permissions wideOpen = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::WriteOther;
        QVERIFY(QDir().mkpath(dataDir));
        QVERIFY(QFile(file).open(QIODevice::WriteOnly));
        QVERIFY(QFile::setPermissions(file, wideOpen));
        QVERIFY(QFile::setPermissions(dataDir, wideOpen | QFile::ExeOwner | QFile::ExeOther));
        const QStringList printed = printedBy([] { SQliteLogin store; });
        qputenv("HOME", savedHome);

        QVERIFY2(dataDir.startsWith(home.path() + QLatin1Char('/')), qPrintable(dataDir));
        QCOMPARE(printed, openedLines(file));
        QCOMPARE(fileMode(dataDir), 0700);
        QCOMPARE(fileMode(file), 0600);
    }
};

QTEST_GUILESS_MAIN(UserStoreTest)
#include "tst_userstore.moc"
