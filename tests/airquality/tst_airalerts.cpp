// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/AirAlertMonitor.h"
#include "airquality/AlertThreshold.h"
#include "airquality/MainHeaderViewModel.h"
#include "airquality/ReadingAge.h"
#include "airquality/ScaleAdvisories.h"
#include "common/ScriptedResponder.h"
#include "records/ProfileMedDetailsModel.h"
#include "storage/SQliteLogin.h"

#include <QDBusConnection>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

namespace
{
const char *const reading = R"([{"id":"1","aqi":"1","co":"230.5","no":"0.4","no2":"21","o3":"80","so2":"2.1","pm25":"38.2","pm10":"51","nh3":"1.5"}])";

// The freedesktop notification service, as far as the app uses it.
class FakeNotifications : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList received;

public Q_SLOTS:
    uint Notify(const QString &appName, uint, const QString &, const QString &summary, const QString &body, const QStringList &, const QVariantMap &, int)
    {
        received.append(appName + QLatin1Char('|') + summary + QLatin1Char('|') + body);
        return uint(received.size());
    }
};
} // namespace

Q_DECLARE_METATYPE(QVector<ProfileMedDetailsModel>)

// Air alerts: where they start from, when they fire, what they say, and the
// age and memory of the dashboard's reading.
class AirAlertsTest : public QObject
{
    Q_OBJECT

    QProcess m_bus;
    FakeNotifications m_service;
    ScriptedResponder m_responder;

    static ProfileMedDetailsModel profile(const char *condition, const char *name, const char *smoker)
    {
        ProfileMedDetailsModel p;
        p.conditionstatus = QString::fromLatin1(condition), p.conditionname = QString::fromLatin1(name), p.smoker = QString::fromLatin1(smoker);
        return p;
    }

    static void signIn(bool alertsOn, int level)
    {
        SQliteLogin().deleteAll();
        SQliteLogin().insert(QStringLiteral("f00d"), QStringLiteral("Ada"), {}, QStringLiteral("ada@example.test"), {}, QStringLiteral("2"), {});
        AlertStore().saveSettings(QStringLiteral("f00d"), { alertsOn, level, false });
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
        // A session bus of the test's own, before anything joins one.
        m_bus.start(QStringLiteral("dbus-daemon"), { QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address") });
        QVERIFY(m_bus.waitForReadyRead(5000));
        const QByteArray address = m_bus.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QDBusConnection service = QDBusConnection::connectToBus(QString::fromUtf8(address), QStringLiteral("fake notifications"));
        QVERIFY(service.registerService(QStringLiteral("org.freedesktop.Notifications")));
        QVERIFY(service.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &m_service, QDBusConnection::ExportAllSlots));
    }

    void cleanupTestCase()
    {
        m_bus.kill();
        m_bus.waitForFinished();
    }

    void thresholdFollowsTheMedicalProfile_data()
    {
        QTest::addColumn<QVector<ProfileMedDetailsModel>>("profiles");
        QTest::addColumn<int>("category");
        QTest::addColumn<QString>("reason");
        QTest::newRow("condition") << QVector { profile("Yes", "Asthma", "Non-Smoker") } << 3 << QStringLiteral("Set for your medical profile: Asthma");
        QTest::newRow("smoker") << QVector { profile("No", "None", "Smoker") } << 3 << QStringLiteral("Set for your medical profile: Smoker");
        QTest::newRow("neither") << QVector { profile("No", "None", "Non-Smoker") } << 4
                                 << QStringLiteral("Set for your medical profile: no condition, not smoking");
        QTest::newRow("no profile") << QVector<ProfileMedDetailsModel>() << 4 << QStringLiteral("Set for everyone: your medical profile is not filled in");
    }

    void thresholdFollowsTheMedicalProfile()
    {
        QFETCH(QVector<ProfileMedDetailsModel>, profiles);
        QFETCH(int, category);
        QFETCH(QString, reason);
        const AlertThreshold threshold = alertThresholdFor(profiles);
        QCOMPARE(threshold.category, category);
        QCOMPARE(threshold.reason, reason);
    }

    // Rising to the level warns once; staying there does not; falling below
    // and rising again warns again. The desktop gets the label, the town and
    // the scale's advisory, from "Tarnelo".
    void risingPastTheLevelWarnsOnce()
    {
        signIn(true, 2);
        AlertStore store;
        AirAlertMonitor monitor(store);
        for (const char *category : { "1", "4", "4", "6", "1", "2" })
            monitor.check(QString::fromLatin1(category), QStringLiteral("Nairobi"));
        QTRY_COMPARE(m_service.received.size(), 2);
        QCOMPARE(m_service.received.first(), QStringLiteral("Tarnelo|Unhealthy air in Nairobi|") + ScaleAdvisories::advisory(4));
        const QList<ReceivedAlert> kept = store.receivedAlerts(QStringLiteral("f00d"));
        QCOMPARE(kept.size(), 2);
        QCOMPARE(kept.first().category, 2);

        SQliteLogin().deleteAll();
        QCOMPARE(store.receivedAlerts(QStringLiteral("f00d")).size(), 0);
        QVERIFY(!store.settings(QStringLiteral("f00d")).enabled);
    }

    // Alerts belong to the first user the device holds; any level of the scale
    // is kept, and each user's newest 50 alerts.
    void storeKeepsEveryLevelAndTheNewestFifty()
    {
        signIn(true, 6);
        SQliteLogin().insert(QStringLiteral("beef"), QStringLiteral("Bo"), {}, {}, {}, {}, {});
        AlertStore store;
        QCOMPARE(store.signedInUser(), QStringLiteral("f00d"));
        QCOMPARE(store.settings(QStringLiteral("f00d")).level.value_or(0), 6);
        for (int i = 0; i < 51; ++i)
            store.addReceivedAlert(QStringLiteral("f00d"), { QDateTime::currentDateTimeUtc(), 4, QStringLiteral("Nairobi") });
        QCOMPARE(store.receivedAlerts(QStringLiteral("f00d")).size(), 50);
    }

    // The 30-minute check sends the dashboard's request again only with alerts on.
    void alertsOffLeaveTheRequestsAsTheyAre()
    {
        m_responder.answer("/tarnelo/v1/airquality.php", 200, reading);
        for (const bool alertsOn : { false, true }) {
            signIn(alertsOn, 3);
            MainHeaderViewModel header;
            header.showPosition(-1.2864, 36.8172);
            QMetaObject::invokeMethod(&header, "checkAlertsAgain");
            QTest::qWait(200);
            QCOMPARE(m_responder.takeTargets().size(), alertsOn ? 2 : 1);
        }
        SQliteLogin().deleteAll();
    }

    void ageInWords()
    {
        QCOMPARE(ReadingAge::ago(59), QStringLiteral("just now"));
        QCOMPARE(ReadingAge::ago(60), QStringLiteral("1 min ago"));
        QCOMPARE(ReadingAge::ago(3599), QStringLiteral("59 min ago"));
        QCOMPARE(ReadingAge::ago(3600), QStringLiteral("1 h ago"));
        QCOMPARE(ReadingAge::ago(3 * 3600 + 3599), QStringLiteral("3 h ago"));
    }

    // The last reading outlives the process, and is shown for a day.
    void lastReadingAcrossARestart()
    {
        AlertStore store;
        const QStringList readings = QStringLiteral("2 230.5 0.4 21 80 2.1 38.2 51 1.5").split(QLatin1Char(' '));
        store.saveLastReading({ readings, QStringLiteral("Nairobi"), QStringLiteral("-1.2864"), QStringLiteral("36.8172"),
                                QDateTime::currentDateTimeUtc().addSecs(-3 * 3600 - 60) });
        QCOMPARE(MainHeaderViewModel().lastReadingText(), QStringLiteral("Last reading: Moderate in Nairobi, 3 h ago"));
        store.saveLastReading({ readings, QStringLiteral("Nairobi"), {}, {}, QDateTime::currentDateTimeUtc().addSecs(-24 * 3600 - 1) });
        QCOMPARE(MainHeaderViewModel().lastReadingText(), QString());
    }
};

QTEST_GUILESS_MAIN(AirAlertsTest)
#include "tst_airalerts.moc"
