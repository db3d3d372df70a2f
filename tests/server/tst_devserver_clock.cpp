// SPDX-License-Identifier: GPL-3.0-or-later
#include "server/Database.h"
#include "server/LoginThrottle.h"
#include "server/Schema.h"
#include "server/SessionStore.h"
#include "server/UserStore.h"

#include <QTemporaryDir>
#include <QTest>

#include <sodium.h>

using namespace std::chrono_literals;

// The account rules that play out over days, under a clock moved by hand.
class DevServerClockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(sodium_init() >= 0); }

    // A session lives 90 days from its last use, and a use refreshes that
    // time only once it is a day old.
    void sessionExpiresUnusedForNinetyDays()
    {
        QTemporaryDir dir;
        Database db(dir.filePath(QStringLiteral("sessions.sqlite")).toStdString());
        createSchema(db);
        const std::optional<User> user = UserStore(db).create({ "Ada", "", "ada@example.test", "", "" }, "not a real hash");
        QVERIFY(user);
        constexpr std::time_t day = 24 * 3600, start = 1'700'000'000;
        std::time_t now = start;
        SessionStore sessions(db, [&now] { return now; });
        const std::string kept = sessions.open(user->id), idle = sessions.open(user->id);
        QVERIFY(kept != idle);

        const auto userOf = [&sessions](const std::string &token) { return sessions.userFor(token).value_or(0); };
        now = start + day / 2;
        QCOMPARE(userOf(idle), user->id);
        now = start + 90 * day - 1;
        QCOMPARE(userOf(kept), user->id);
        now = start + 90 * day;
        QCOMPARE(userOf(idle), std::int64_t(0));
        QCOMPARE(userOf(kept), user->id);
        now = start + 180 * day - 1;
        QCOMPARE(userOf(kept), std::int64_t(0));
    }

    // Five free failures, then 30 s doubling with each failure up to 15 min;
    // refused tries count nothing, and a day without failures forgets them.
    void throttleDelayDoublesToItsCap()
    {
        auto now = std::chrono::steady_clock::time_point() + 1000h;
        LoginThrottle throttle(30s, [&now] { return now; });
        const auto wait = [&throttle] { return int(throttle.waitFor("key").count()); };
        for (int i = 0; i < 4; ++i)
            throttle.recordFailure("key");
        QCOMPARE(wait(), 0);
        QCOMPARE(int(throttle.begin("key").count()), 0);
        QCOMPARE(wait(), 30);
        QCOMPARE(int(throttle.begin("key").count()), 30);
        for (const int expected : { 60, 120, 240, 480, 900, 900 }) {
            now += throttle.waitFor("key");
            throttle.recordFailure("key");
            QCOMPARE(wait(), expected);
        }
        now += 25h;
        throttle.recordFailure("key");
        QCOMPARE(wait(), 0);
        for (int i = 0; i < 4; ++i)
            throttle.recordFailure("key");
        QCOMPARE(wait(), 30);
        throttle.clear("key");
        QCOMPARE(wait(), 0);
    }
};

QTEST_GUILESS_MAIN(DevServerClockTest)
#include "tst_devserver_clock.moc"
