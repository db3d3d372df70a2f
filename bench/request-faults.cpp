// SPDX-License-Identifier: GPL-3.0-or-later
// What the app's HTTP client does against tests/service/faultserver.py; run
// by request-faults.sh, which starts the server and counts what reached its
// other host. One scenario per run:
//   away     10 logins, each redirected to the other host
//   trickle  6 answers that trickle (every connection Qt opens to a host),
//            and from a second later one request to the same host every
//            5 s, 24 in all; stops after 150 s
//   big      2 answers of 50 MB at once; prints the peak memory (VmHWM)
// Usage: request_faults <away|trickle|big> https://127.0.0.1:PORT
// with TARNELO_CA_FILE naming the server's certificate.
#include "service/BackendQuery.h"
#include "service/HttpGet.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <cstdio>

namespace
{
constexpr int stopAfterMs = 150 * 1000;

QElapsedTimer runClock;

double seconds(qint64 ms)
{
    return static_cast<double>(ms) / 1000;
}

// The requests of one kind and how each ended.
struct Tally {
    int sent = 0;
    int answered = 0;
    int failed = 0;
    qint64 lastEndMs = -1;
    QString lastError;
    QStringList ends;

    void send(const QUrl &url, QObject *context)
    {
        ++sent;
        const qint64 sentMs = runClock.elapsed();
        httpGet(url, context, [this, sentMs](const HttpAnswer &answer) {
            answer.received() ? ++answered : ++failed;
            lastEndMs = runClock.elapsed();
            if (!answer.received())
                lastError = answer.error;
            ends.append(QStringLiteral("sent at %1 s, %2 at %3 s")
                            .arg(seconds(sentMs), 0, 'f', 1)
                            .arg(answer.received() ? QStringLiteral("answered") : QStringLiteral("failed"))
                            .arg(seconds(lastEndMs), 0, 'f', 1));
        });
    }
    bool allEnded() const { return answered + failed == sent; }
    void print(const char *what) const
    {
        std::printf("%s: %d sent, %d answered, %d failed, %d not ended; last ended at %s; last failure: %s\n", what, sent, answered, failed,
                    sent - answered - failed, lastEndMs < 0 ? "never" : qPrintable(QString::number(seconds(lastEndMs), 'f', 1) + QStringLiteral(" s")),
                    qPrintable(lastError));
    }
};

QByteArray peakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.simplified();
    return "VmHWM: unknown";
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: request_faults <away|trickle|big> https://127.0.0.1:PORT\n");
        return 2;
    }
    const QByteArray scenario = argv[1];
    const QString base = QString::fromLocal8Bit(argv[2]);
    const auto url
        = [&base](const char *behaviour) { return QUrl(base + QLatin1Char('/') + QLatin1String(behaviour) + QStringLiteral("/tarnelo/v1/airquality.php")); };
    runClock.start();
    Tally first, later;
    if (scenario == "away") {
        qputenv("TARNELO_BACKEND_URL", (base + QStringLiteral("/away")).toUtf8());
        for (int i = 0; i < 10; ++i)
            first.send(
                requestUrl(backendRequestText(BackendScript::Login, { { "username", QStringLiteral("a@b.co") }, { "passcode", QStringLiteral("secret") } })),
                &app);
    } else if (scenario == "trickle") {
        for (int i = 0; i < 6; ++i)
            first.send(url("trickle"), &app);
        for (int i = 0; i < 24; ++i)
            QTimer::singleShot(1000 + 5000 * i, &app, [&] { later.send(url("ok"), &app); });
    } else {
        for (int i = 0; i < 2; ++i)
            first.send(url("big"), &app);
    }
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &app, [&] {
        const bool allSent = scenario != "trickle" || later.sent == 24;
        if ((allSent && first.allEnded() && later.allEnded()) || runClock.elapsed() > stopAfterMs)
            app.quit();
    });
    poll.start(100);
    app.exec();
    first.print(scenario.constData());
    if (later.sent > 0) {
        later.print("later to the same host");
        std::printf("  %s\n", qPrintable(later.ends.join(QStringLiteral("\n  "))));
    }
    std::printf("%s\n", peakMemory().constData());
    return 0;
}
