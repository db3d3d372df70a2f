// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/ServiceConfig.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

// Built with the packaged app's relative certificate name (see CMakeLists.txt):
// the installed app finds its backend's certificate in the user's data
// directory; a path in the environment, as `make run` gives, is taken as is.
class ServiceConfigTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void caFileComesFromTheEnvironmentOrTheDataDirectory()
    {
        QTemporaryDir dataHome;
        qputenv("XDG_DATA_HOME", QFile::encodeName(dataHome.path()));
        qunsetenv("TARNELO_CA_FILE");
        QCOMPARE(QDir::cleanPath(ServiceConfig::extraCaFile()), dataHome.filePath(QStringLiteral("tarnelo-backend/tls/cert.pem")));
        qputenv("TARNELO_CA_FILE", "build/devserver-data/tls/cert.pem");
        QCOMPARE(QDir::cleanPath(ServiceConfig::extraCaFile()), QStringLiteral("build/devserver-data/tls/cert.pem"));
    }
};

QTEST_GUILESS_MAIN(ServiceConfigTest)
#include "tst_serviceconfig.moc"
