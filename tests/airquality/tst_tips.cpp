// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/MainCategoryViewModel.h"
#include "airquality/PollutantCardModel.h"
#include "airquality/TipsViewModel.h"
#include "common/ScriptedResponder.h"
#include "common/StdoutCapture.h"

#include <QSignalSpy>
#include <QTest>

namespace
{
const char *const path = "/tarnelo/v1/airquality.php";
const char *const readings[] = { "txt_co", "txt_no", "txt_no2", "txt_o3", "txt_so2", "txt_pm25", "txt_pm10", "txt_nh3" };

QString text(const QObject &object, const char *property)
{
    return object.property(property).toString();
}

QStringList shownReadings(const TipsViewModel &tips)
{
    QStringList shown;
    for (const char *property : readings)
        shown << text(tips, property);
    return shown;
}

void moveTo(TipsViewModel &tips, double latitude, double longitude)
{
    Q_EMIT tips.locationManager()->locationManager()->locationsUpdated(
        { QGeoPositionInfo(QGeoCoordinate(latitude, longitude), QDateTime::currentDateTimeUtc()) });
}
} // namespace

class TipsTest : public QObject
{
    Q_OBJECT

    ScriptedResponder m_responder;

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TARNELO_BACKEND_URL", m_responder.url().toUtf8());
        // Readings and coordinates are C-locale numbers whatever the user's
        // locale; one that writes "12,5" and groups with "." shows any slip.
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }

    void tipsShowTheFirstReadingAtEachPosition()
    {
        TipsViewModel tips;
        QSignalSpy changed(&tips, &TipsViewModel::readingsChanged);

        m_responder.answer(path, 200,
                           R"([{"id":"1","aqi":"2","co":"230.5","no":"0.4","no2":"21","o3":"80","so2":"2.1","pm25":"38.2","pm10":"51","nh3":"1.5"},)"
                           R"({"id":"2","aqi":"5","co":"999","no":"9","no2":"99","o3":"9","so2":"9","pm25":"99","pm10":"99","nh3":"9"}])");
        QStringList lines;
        {
            StdoutCapture capture;
            moveTo(tips, -1.2864, 36.8172);
            QVERIFY(changed.wait());
            lines = capture.takeLines();
        }
        const QString query = QStringLiteral("/tarnelo/v1/airquality.php?lat=-1.2864&lon=36.8172");
        QCOMPARE(lines.value(0), QStringLiteral("URL PRINT  ") + m_responder.url() + query);
        QCOMPARE(m_responder.takeTargets(), QStringList { query });
        QCOMPARE(text(tips, "txt_lat"), QStringLiteral("-1.2864"));
        QCOMPARE(text(tips, "txt_log"), QStringLiteral("36.8172"));
        QCOMPARE(shownReadings(tips), QStringLiteral("230.5 0.4 21 80 2.1 38.2 51 1.5").split(QLatin1Char(' ')));

        // An empty list keeps every reading.
        m_responder.answer(path, 200, "[]");
        moveTo(tips, 48, 2.5);
        QStringList targets;
        QTRY_VERIFY(!(targets += m_responder.takeTargets()).isEmpty());
        QCOMPARE(targets, QStringList { QStringLiteral("/tarnelo/v1/airquality.php?lat=48&lon=2.5") });
        QTest::qWait(50);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(text(tips, "txt_lat"), QStringLiteral("48"));
        QCOMPARE(text(tips, "txt_pm25"), QStringLiteral("38.2"));
    }

    void cardPlacesItsMarkerOnTheScale_data()
    {
        QTest::addColumn<QString>("reading");
        QTest::addColumn<QString>("value");
        QTest::addColumn<double>("concentration");
        QTest::addColumn<double>("markerX");
        const auto row = [](const char *tag, const char *reading, const char *value, double concentration, double markerX) {
            QTest::newRow(tag) << QString::fromLatin1(reading) << QString::fromLatin1(value) << concentration << markerX;
        };
        row("beyond the scale", "1200", "1200 mg/m3", 1200, 300);
        row("below zero", "-5", "-5 mg/m3", -5, 0);
        row("not a number", "abc", "abc mg/m3", 0, 0);
        row("not a finite number", "nan", "nan mg/m3", 0, 0);
        row("a decimal comma", "12,5", "12,5 mg/m3", 0, 0);
        row("halfway", "300", "300 mg/m3", 300, 150);
        row("a fraction", "45.6", "45.6 mg/m3", 45.6, 22.8);
        row("empty", "", " mg/m3", 0, 0);
    }

    void cardPlacesItsMarkerOnTheScale()
    {
        QFETCH(QString, reading);
        QFETCH(QString, value);
        QFETCH(double, concentration);
        QFETCH(double, markerX);
        PollutantCardModel card;
        QCOMPARE(text(card, "value"), QStringLiteral(" mg/m3"));
        card.setProperty("reading", QStringLiteral("599"));
        card.setProperty("reading", reading);
        QCOMPARE(text(card, "value"), value);
        QCOMPARE(card.property("txt_co").toDouble(), concentration);
        QCOMPARE(card.property("markerX").toDouble(), markerX);
    }

    void categoryCardsTurnOneByOneAndAllBack()
    {
        MainCategoryViewModel category;
        const auto flags = [&category] {
            QString shown;
            for (int flag = 1; flag <= 6; ++flag)
                shown += category.property(QByteArray("isSecondButtonVisible" + QByteArray::number(flag))).toBool() ? QLatin1Char('1') : QLatin1Char('0');
            return shown;
        };
        QSignalSpy changed(&category, &MainCategoryViewModel::visibilityChanged);
        QCOMPARE(flags(), QStringLiteral("000000"));
        category.toggle(2);
        QCOMPARE(flags(), QStringLiteral("010001"));
        category.toggle(1);
        category.toggle(5);
        QCOMPARE(flags(), QStringLiteral("110011"));
        category.toggle(2);
        QCOMPARE(flags(), QStringLiteral("100011"));
        category.toggle(0);
        category.toggle(6);
        QCOMPARE(flags(), QStringLiteral("100011"));
        QCOMPARE(changed.count(), 4);
        category.turnAllBack();
        QCOMPARE(flags(), QStringLiteral("000000"));
        category.turnAllBack();
        QCOMPARE(changed.count(), 5);
    }
};

QTEST_GUILESS_MAIN(TipsTest)
#include "tst_tips.moc"
