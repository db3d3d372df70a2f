// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ServiceConfig.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

// Built here with the packaged app's relative certificate name (see
// CMakeLists.txt): the installed app finds the certificate its backend wrote
// in the user's data directory, while a path given in the environment, as
// `make run` gives one relative to the checkout, is taken as it stands.
class ServiceConfigTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dataHome;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dataHome.isValid());
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_dataHome.path()));
    }

    void caFileComesFromTheEnvironmentOrTheDataDirectory_data()
    {
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<QString>("expected");
        QTest::newRow("unset: the backend's certificate in the user's data directory")
            << QByteArray() << m_dataHome.filePath(QStringLiteral("tarnelo-backend/tls/cert.pem"));
        QTest::newRow("relative: from the working directory")
            << QByteArray("build/devserver-data/tls/cert.pem") << QStringLiteral("build/devserver-data/tls/cert.pem");
    }

    void caFileComesFromTheEnvironmentOrTheDataDirectory()
    {
        QFETCH(QByteArray, variable);
        QFETCH(QString, expected);
        if (variable.isNull())
            qunsetenv("TARNELO_CA_FILE");
        else
            qputenv("TARNELO_CA_FILE", variable);
        QCOMPARE(QDir::cleanPath(ServiceConfig::extraCaFile()), expected);
    }
};

QTEST_GUILESS_MAIN(ServiceConfigTest)
#include "tst_serviceconfig.moc"
