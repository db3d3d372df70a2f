// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/DevServerProcess.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QRegularExpression>

namespace
{
const QRegularExpression readyLine(QStringLiteral("^Tarnelo development backend ready: https=(\\d+) http=(\\d+) ca=(.+)$"));
const QRegularExpression demoLine(QStringLiteral("^Demo account: (\\S+) / (\\S+)$"));
} // namespace

DevServerProcess::DevServerProcess(const QString &dataDir, const QStringList &options)
    : m_ownDir(dataDir.isEmpty() ? std::make_unique<QTemporaryDir>() : nullptr)
    , m_dataDir(m_ownDir ? m_ownDir->path() : dataDir)
{
    // Tests must not depend on the network or on someone's real API key.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("OPENWEATHERMAP_API_KEY"));
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(TARNELO_DEVSERVER),
                    QStringList { QStringLiteral("--data"), m_dataDir, QStringLiteral("--https-port"), QStringLiteral("0"), QStringLiteral("--http-port"),
                                  QStringLiteral("0"), QStringLiteral("--history-key"), historyKey(), QStringLiteral("--sources"),
                                  QStringLiteral("simulated") }
                        + options);
    if (!m_process.waitForStarted(5000))
        return;
    // The demo line follows the ready line: wait for both.
    const QDeadlineTimer deadline(15000);
    while (m_demoPassword.isEmpty() && !deadline.hasExpired() && m_process.state() == QProcess::Running) {
        readOutput(static_cast<int>(qMax<qint64>(1, deadline.remainingTime())));
        for (const QString &line : qAsConst(m_lines)) {
            const QRegularExpressionMatch ready = readyLine.match(line);
            if (ready.hasMatch()) {
                m_httpsPort = ready.captured(1).toInt();
                m_httpPort = ready.captured(2).toInt();
                m_caFile = ready.captured(3);
            }
            const QRegularExpressionMatch demo = demoLine.match(line);
            if (demo.hasMatch()) {
                m_demoEmail = demo.captured(1);
                m_demoPassword = demo.captured(2);
            }
        }
    }
    if (m_demoPassword.isEmpty())
        m_httpsPort = -1;
}

DevServerProcess::~DevServerProcess()
{
    if (m_process.state() != QProcess::NotRunning)
        stop();
}

QUrl DevServerProcess::backendUrl() const
{
    return QUrl(QStringLiteral("https://127.0.0.1:%1").arg(m_httpsPort));
}

QUrl DevServerProcess::historyUrl() const
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1").arg(m_httpPort));
}

QString DevServerProcess::historyKey()
{
    return QStringLiteral("tarnelo-test-history-key");
}

void DevServerProcess::readOutput(int waitMs)
{
    if (m_process.state() == QProcess::Running)
        m_process.waitForReadyRead(waitMs);
    m_partialLine += m_process.readAllStandardOutput();
    int end;
    while ((end = m_partialLine.indexOf('\n')) >= 0) {
        m_lines.append(QString::fromUtf8(m_partialLine.left(end)));
        m_partialLine.remove(0, end + 1);
    }
}

QStringList DevServerProcess::consoleLines()
{
    readOutput(0);
    return m_lines;
}

QString DevServerProcess::waitForConsoleLine(const QString &text, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    do {
        readOutput(static_cast<int>(qMin<qint64>(50, qMax<qint64>(0, deadline.remainingTime()))));
        for (const QString &line : qAsConst(m_lines))
            if (line.contains(text))
                return line;
    } while (!deadline.hasExpired());
    return QString();
}

qint64 DevServerProcess::peakMemoryKiB() const
{
    QFile status(QStringLiteral("/proc/%1/status").arg(m_process.processId()));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QRegularExpressionMatch peak
        = QRegularExpression(QStringLiteral("^VmHWM:\\s+(\\d+) kB$"), QRegularExpression::MultilineOption).match(QString::fromLatin1(status.readAll()));
    return peak.hasMatch() ? peak.captured(1).toLongLong() : -1;
}

int DevServerProcess::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return -1;
    m_process.terminate();
    if (!m_process.waitForFinished(5000)) {
        m_process.kill();
        m_process.waitForFinished(1000);
        return -1;
    }
    readOutput(0);
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}
