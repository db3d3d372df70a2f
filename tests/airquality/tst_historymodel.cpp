// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/HistoryViewDateFormat.h"
#include "airquality/HistoryViewDays.h"
#include "airquality/HistoryViewModel.h"
#include "common/ScriptedResponder.h"

#include <QLineSeries>
#include <QTest>

#include <cmath>

namespace
{
const std::string historyPath = "/data/2.5/air_pollution/history";

AQIEntry entry(qint64 level, double time)
{
    AQIEntry made;
    made.main.aqi = level;
    made.dt = time;
    return made;
}

void moveTo(HistoryViewModel &model, double latitude, double longitude)
{
    Q_EMIT model.locationManager()->locationManager()->locationsUpdated(
        { QGeoPositionInfo(QGeoCoordinate(latitude, longitude), QDateTime::currentDateTimeUtc()) });
}
} // namespace

class HistoryModelTest : public QObject
{
    Q_OBJECT

    ScriptedResponder m_responder;

    // The history targets the responder received within a moment.
    QStringList historyTargets()
    {
        QTest::qWait(150);
        return m_responder.takeTargets().filter(QStringLiteral("/history?"));
    }

private Q_SLOTS:
    void initTestCase() { qputenv("TARNELO_HISTORY_URL", m_responder.url().toUtf8()); }
    void init() { m_responder.takeTargets(); }

    void eachLocalDayKeepsItsWorstLevelAndWhenItFirstCame()
    {
        // 2023-11-14 20:00 UTC is 23:00 in Nairobi (UTC+3); an hour later the local day turns.
        const double lateEvening = 1699992000;
        const QTimeZone nairobi(3 * 3600);
        const QVector<AQIEntry> entries { entry(4, lateEvening + 3 * 3600), entry(2, lateEvening + 3600),  entry(3, lateEvening),
                                          entry(9, lateEvening + 1800),     entry(4, lateEvening + 7200),  entry(0, lateEvening + 5400),
                                          entry(5, std::nan("")),           entry(2, lateEvening + 10800), entry(5, lateEvening - 3600) };

        const QVector<HistoryViewDays::Reading> readings = HistoryViewDays::readings(entries, nairobi);
        QCOMPARE(readings.size(), 6);
        QCOMPARE(readings.first().time, QDateTime(QDate(2023, 11, 14), QTime(22, 0), nairobi));

        const QVector<HistoryViewDays::Day> days = HistoryViewDays::worstOfEachDay(readings);
        QCOMPARE(days.size(), 2);
        QCOMPARE(days.at(0).date, QDate(2023, 11, 15));
        QCOMPARE(days.at(0).level, 4);
        QCOMPARE(days.at(0).peak, QDateTime(QDate(2023, 11, 15), QTime(1, 0), nairobi));
        QCOMPARE(days.at(1).date, QDate(2023, 11, 14));
        QCOMPARE(days.at(1).level, 5);
    }

    void localeFormatsLoseTheYearAndTheSeconds()
    {
        QCOMPARE(yearlessDateFormat(QStringLiteral("M/d/yy")), QStringLiteral("M/d"));
        QCOMPARE(yearlessDateFormat(QStringLiteral("yyyy-MM-dd")), QStringLiteral("MM-dd"));
        QCOMPARE(yearlessDateFormat(QStringLiteral("d MMM yyyy")), QStringLiteral("d MMM"));
        QCOMPARE(secondlessTimeFormat(QStringLiteral("h:mm:ss AP")), QStringLiteral("h:mm AP"));
    }

    void theFirstPositionAsksOnceAndTheAnswerIsDrawn()
    {
        m_responder.answer(historyPath, 200,
                           R"({"list":[{"main":{"aqi":3},"dt":1700003600},{"main":{"aqi":2},"dt":1700000000},{"main":{"aqi":6},"dt":1700007200}]})");
        HistoryViewModel model;
        QCOMPARE(model.state(), HistoryViewModel::State::Loading);
        moveTo(model, -1.2864, 36.8172);
        QTRY_COMPARE(model.state(), HistoryViewModel::State::Ready);
        moveTo(model, 48.8566, 2.3522);
        const QStringList targets = historyTargets();
        QCOMPARE(targets.size(), 1);
        QVERIFY2(targets.first().contains(QLatin1String("?lat=-1.2864&lon=36.8172&")), qPrintable(targets.first()));

        QtCharts::QLineSeries series;
        series.append(0, 0);
        model.fillSeries(&series);
        QCOMPARE(series.pointsVector(), (QVector<QPointF> { { 1700000000000., 2 }, { 1700003600000., 3 } }));
        QCOMPARE(model.days().size(), 1);

        m_responder.answer(historyPath, 200, R"({"list":[]})");
        HistoryViewModel nothing;
        moveTo(nothing, 1, 2);
        QTRY_COMPARE(nothing.state(), HistoryViewModel::State::Empty);
    }

    void failuresWaitForTheUserToTryAgain()
    {
        m_responder.answer(historyPath, 401, R"({"cod":401,"message":"Invalid API key."})");
        HistoryViewModel model;
        moveTo(model, 1, 2);
        QTRY_COMPARE(model.state(), HistoryViewModel::State::Failed);
        QCOMPARE(historyTargets().size(), 1);

        m_responder.answer(historyPath, 200, R"({"list":[{"main":{"aqi":1},"dt":1700000000}]})");
        model.retry();
        model.retry();
        QCOMPARE(model.state(), HistoryViewModel::State::Loading);
        QTRY_COMPARE(model.state(), HistoryViewModel::State::Ready);
        model.retry();
        QCOMPARE(historyTargets().size(), 1);
    }
};

QTEST_MAIN(HistoryModelTest)
#include "tst_historymodel.moc"
