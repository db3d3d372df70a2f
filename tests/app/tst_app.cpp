// SPDX-License-Identifier: GPL-3.0-or-later
// Starts the built app as a user's machine would, headless, with its own data directory.
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

class AppTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheStoreAndDrawsTheHomeScreen()
    {
        QTemporaryDir dataHome;
        QVERIFY(dataHome.isValid());
        const QString screenshot = dataHome.filePath(QStringLiteral("home.png"));

        QProcess app;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), dataHome.path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
        app.setProcessEnvironment(environment);
        app.start(QStringLiteral(TARNELO_APP), { QStringLiteral("--screenshot"), screenshot });
        QVERIFY(app.waitForFinished(60000));
        QCOMPARE(app.exitStatus(), QProcess::NormalExit);
        QCOMPARE(app.exitCode(), 0);

        // What the store prints is tst_userstore's; here only where it went.
        QVERIFY(QFile::exists(dataHome.filePath(QStringLiteral("tarnelo/tarnelo_db.sqlite"))));

        const QImage image(screenshot);
        QVERIFY(!image.isNull());
        QCOMPARE(image.size(), QSize(390, 844));
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); y += 4) {
            for (int x = 0; x < image.width(); x += 2)
                colours.insert(image.pixel(x, y));
        }
        // Text, icons in two tints, bars and the shadow give far more than a blank page's few colours.
        QVERIFY2(colours.size() > 20, qPrintable(QString::number(colours.size())));
    }
};

QTEST_GUILESS_MAIN(AppTest)
#include "tst_app.moc"
