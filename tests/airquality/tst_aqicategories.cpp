// SPDX-License-Identifier: GPL-3.0-or-later
#include "airquality/AqiClassification.h"
#include "airquality/MainIndoorsViewModel.h"

#include <QSignalSpy>
#include <QTest>

char *toString(const AqiStatus &shown)
{
    return QTest::toString(QStringList { shown.txt_status, shown.statusColor.name(), shown.aqiValue }.join(QLatin1Char('/')));
}

namespace
{
AqiStatus classified(const QString &category, AqiStatus shown = {})
{
    AqiClassification::classify(category, shown);
    return shown;
}

AqiStatus status(const char *text, QRgb color, const char *value)
{
    return { QString::fromLatin1(text), QColor(color), QString::fromLatin1(value) };
}
} // namespace

class AqiCategoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void categoriesNameColourAndValue()
    {
        QCOMPARE(classified(QStringLiteral("1")), status("Good", 0x34C759, "50"));
        QCOMPARE(classified(QStringLiteral("2")), status("Moderate", 0xFFCC00, "100"));
        QCOMPARE(classified(QStringLiteral("3")), status("Unhealthy for sensitive groups", 0xFF9500, "200"));
        QCOMPARE(classified(QStringLiteral("4")), status("Unhealthy", 0xFF3B30, "300"));
        QCOMPARE(classified(QStringLiteral("5")), status("Very unhealthy", 0xAF52DE, "400"));
        QCOMPARE(classified(QStringLiteral("6")), status("Hazardous", 0xAF52DE, "500"));
    }

    void otherTextKeepsWhatWasShown_data()
    {
        QTest::addColumn<QString>("category");
        QTest::newRow("past the scale") << QStringLiteral("7");
        QTest::newRow("empty") << QString();
        QTest::newRow("leading blank") << QStringLiteral(" 1");
        QTest::newRow("a number, not its text") << QStringLiteral("2.0");
    }
    void otherTextKeepsWhatWasShown()
    {
        QFETCH(QString, category);
        QCOMPARE(classified(category), AqiStatus {});
        const AqiStatus moderate = classified(QStringLiteral("2"));
        QCOMPARE(classified(category, moderate), moderate);
    }

    // Black on every status colour and on white; white only on the deepest.
    void statusTextStaysReadable()
    {
        for (const QRgb status : { 0xFFFFFF, 0xFFCC00, 0x34C759, 0xFF9500, 0xFF3B30, 0xAF52DE })
            QCOMPARE(AqiClassification::readableTextOn(QColor(status)), QColor(Qt::black));
        for (const QRgb deep : { 0x7E0023, 0x2F5D8A })
            QCOMPARE(AqiClassification::readableTextOn(QColor(deep)), QColor(Qt::white));
    }

    // "1" and "2" share the airing advice; each worse category has its own,
    // and any other text a neutral one.
    void indoorAdviceFollowsTheOutdoorCategory()
    {
        QStringList advice;
        for (const char *category : { "1", "2", "3", "4", "5", "6", "0" })
            advice += MainIndoorsViewModel::adviceFor(QString::fromLatin1(category));
        QCOMPARE(advice.first(), QStringLiteral("Open windows to air your rooms"));
        QCOMPARE(advice.at(1), advice.first());
        QCOMPARE(advice.mid(1).removeDuplicates(), 0);
        for (const char *other : { "7", "", " 4", "four" })
            QCOMPARE(MainIndoorsViewModel::adviceFor(QString::fromLatin1(other)), advice.last());

        MainIndoorsViewModel model;
        QSignalSpy changed(&model, &MainIndoorsViewModel::outdoorIndexChanged);
        model.setProperty("outdoorIndex", QStringLiteral("5"));
        QCOMPARE(model.property("advice").toString(), advice.at(4));
        model.setOutdoorIndex(QStringLiteral("5"));
        QCOMPARE(changed.count(), 1);
    }
};

QTEST_GUILESS_MAIN(AqiCategoriesTest)
#include "tst_aqicategories.moc"
