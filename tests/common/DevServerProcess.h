// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

// Runs the development backend (tarnelo-devserver) for one test: offline,
// with simulated readings, on ports the system picks, and with a data
// directory of its own. The constructor waits up to 15 s for the server to
// report itself ready (see isReady()); the destructor stops it with SIGTERM.
class DevServerProcess
{
public:
    // dataDir empty: a fresh temporary directory, removed afterwards. Give the
    // dataDir() of an earlier server to start again on its accounts and certificate.
    // options are added to the command line; by default the one that prints
    // reset passwords, which tests read from the console.
    explicit DevServerProcess(const QString &dataDir = QString(), const QStringList &options = { QStringLiteral("--print-reset-passwords") });
    ~DevServerProcess();
    DevServerProcess(const DevServerProcess &) = delete;
    DevServerProcess &operator=(const DevServerProcess &) = delete;

    bool isReady() const { return m_httpsPort > 0; }
    int httpsPort() const { return m_httpsPort; }
    int httpPort() const { return m_httpPort; }
    QString caFile() const { return m_caFile; } // the server's self-signed certificate, PEM
    QString dataDir() const { return m_dataDir; }
    QUrl backendUrl() const; // https://127.0.0.1:PORT; the scripts live under /tarnelo/v1/
    QUrl historyUrl() const; // http://127.0.0.1:PORT; history at /data/2.5/air_pollution/history
    static QString historyKey(); // the appid the history answers
    QString demoEmail() const { return m_demoEmail; }
    QString demoPassword() const { return m_demoPassword; }

    // Every line the server printed so far, without line feeds.
    QStringList consoleLines();
    // The first printed line containing text, waiting up to timeoutMs for it;
    // empty if none came. A request's line comes just after its answer.
    QString waitForConsoleLine(const QString &text, int timeoutMs = 5000);

    // The server's peak resident memory so far, in KiB (VmHWM), or -1.
    qint64 peakMemoryKiB() const;

    // Sends SIGTERM and waits; the exit code, or -1 if the server crashed or hung.
    int stop();

private:
    void readOutput(int waitMs);

    std::unique_ptr<QTemporaryDir> m_ownDir;
    QString m_dataDir;
    QProcess m_process;
    QByteArray m_partialLine;
    QStringList m_lines;
    int m_httpsPort = -1;
    int m_httpPort = -1;
    QString m_caFile;
    QString m_demoEmail;
    QString m_demoPassword;
};
